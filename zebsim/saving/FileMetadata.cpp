#include "FileMetadata.h"

#include <algorithm>
#include <functional>

namespace {

using Tags = QList<QPair<QString, QString>>;

/// Of a camera's name; nobody needs more.
constexpr int MostLetters = 1000;
/// For the ends of a list, and for how many are left out.
constexpr int EndBytes = 40;
/// That a letter takes in UTF-8.
constexpr int LetterBytes = 3;

QByteArray quoted(const QString& text) {
    QByteArray json = "\"";
    for (const QChar letter : text) {
        const char16_t code = letter.unicode();
        if (code == '"' || code == '\\') {
            json += '\\';
        }
        if (code < ' ' || code > '~') {
            json += "\\u" + QByteArray::number(code, 16).rightJustified(4, '0');
        } else {
            json += char(code);
        }
    }
    return json + '"';
}

QString secondsText(qint64 microseconds) {
    return QString::number(double(microseconds) / 1e6, 'f', 6);
}

/// The first of `count` texts that `room` has bytes for, and how many the others are.
QByteArray listOf(int count, const std::function<QByteArray(int)>& text, int room, const QByteArray& ofOthers) {
    QByteArray list;
    int i = 0;
    for (; i < count; ++i) {
        const QByteArray next = (i > 0 ? "," : "") + text(i);
        if (list.size() + next.size() > room - EndBytes) {
            break;
        }
        list += next;
    }
    const QByteArray others = i < count ? ",\"" + ofOthers + "\":" + QByteArray::number(count - i) : QByteArray();
    return '[' + list + ']' + others;
}

QByteArray itemText(const CustomItem& item) {
    return "{\"name\":" + quoted(item.name) + ",\"value\":" + quoted(item.value) + ",\"unit\":" + quoted(item.unit) +
           '}';
}

void addTimestamp(Tags& tags, const FrameTimestamp& timestamp, const char* number, const char* time) {
    tags.append({QLatin1String(number), QString::number(timestamp.number)});
    if (timestamp.time) {
        tags.append({QLatin1String(time), secondsText(*timestamp.time)});
    }
}

/// All that are numbers.
Tags numbersOf(const FrameMetadata& frame) {
    Tags tags = {{QStringLiteral("rate"), QString::number(frame.rate)},
                 {QStringLiteral("shutter"), QString::number(frame.shutter)}};
    addTimestamp(tags, frame.first, "frame", "time");
    if (frame.last) {
        addTimestamp(tags, *frame.last, "lastFrame", "lastTime");
    }
    return tags;
}

QByteArray objectOf(const FrameMetadata& frame, int room) {
    QByteArray object = "{\"camera\":" + quoted(frame.camera.left(MostLetters));
    const Tags numbers = numbersOf(frame);
    for (const auto& [name, number] : numbers) {
        object += ",\"" + name.toLatin1() + "\":" + number.toLatin1();
    }
    const QList<CustomItem> items = frame.info.shown();
    object += ",\"items\":";
    return object +
           listOf(
               items.size(), [&](int i) { return itemText(items.at(i)); }, room - object.size(), "itemsLeftOut") +
           '}';
}

}  // namespace

FileMetadata FileMetadata::of(const FrameMetadata& frame) {
    FileMetadata metadata{objectOf(frame, MostBytes), numbersOf(frame)};
    metadata.tags.prepend({QStringLiteral("camera"), frame.camera.left(MostLetters)});
    metadata.tags.append(
        {QStringLiteral("items"), frame.info.shownTexts().join(QLatin1Char('\n')).left(MostBytes / LetterBytes)});
    return metadata;
}

FileMetadata FileMetadata::ofLayout(const QList<FrameMetadata>& cameras) {
    const int room = MostBytes / std::max(1, cameras.size());
    const auto text = [&](int i) { return objectOf(cameras.at(i), room); };
    return {"{\"cameras\":" + listOf(cameras.size(), text, MostBytes, "camerasLeftOut") + '}', {}};
}
