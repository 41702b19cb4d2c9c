#include "FileMetadata.h"

#include "OneLine.h"

#include <QStringList>

#include <algorithm>
#include <functional>

namespace {

using Tags = QList<QPair<QString, QString>>;

/// Of a camera's name; nobody needs more.
constexpr int MostLetters = 1000;
/// For what stands around a list, and for how many are left out.
constexpr int EndBytes = 40;

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

struct JsonList {
    QByteArray json;
    int count;
};

/// The first of `count` texts, as many as `room` has bytes for.
JsonList listOf(int count, const std::function<QByteArray(int)>& text, int room) {
    QByteArray texts;
    int i = 0;
    for (; i < count; ++i) {
        const QByteArray next = (i > 0 ? "," : "") + text(i);
        if (texts.size() + next.size() > room - EndBytes) {
            break;
        }
        texts += next;
    }
    return {'[' + texts + ']', i};
}

QByteArray member(const QByteArray& name, const QByteArray& json) {
    return ",\"" + name + "\":" + json;
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

/// A description of at most `room` bytes.
FileMetadata metadataOf(const FrameMetadata& frame, int room) {
    const QString camera = frame.camera.left(MostLetters);
    FileMetadata metadata{"{\"camera\":" + quoted(camera), numbersOf(frame)};
    auto& [description, tags] = metadata;
    for (const auto& [name, number] : qAsConst(tags)) {
        description += member(name.toLatin1(), number.toLatin1());
    }
    const QList<CustomItem> items = frame.info.shown();
    const auto text = [&](int i) { return itemText(items.at(i)); };
    const JsonList list = listOf(items.size(), text, room - description.size());
    description += member("items", list.json);
    QStringList lines;
    for (int i = 0; i < list.count; ++i) {
        lines.append(inOneLine(items.at(i).text()));
    }
    tags.prepend({QStringLiteral("camera"), camera});
    tags.append({QStringLiteral("items"), lines.join(QLatin1Char('\n'))});
    if (list.count < items.size()) {
        const QString leftOut = QString::number(items.size() - list.count);
        description += member("itemsLeftOut", leftOut.toLatin1());
        tags.append({QStringLiteral("itemsLeftOut"), leftOut});
    }
    description += '}';
    return metadata;
}

}  // namespace

FileMetadata FileMetadata::of(const FrameMetadata& frame) {
    return metadataOf(frame, MostBytes);
}

FileMetadata FileMetadata::ofLayout(const QList<FrameMetadata>& cameras) {
    const int room = MostBytes / std::max(1, cameras.size());
    const auto text = [&](int i) { return metadataOf(cameras.at(i), room).description; };
    const JsonList list = listOf(cameras.size(), text, MostBytes);
    const int leftOut = cameras.size() - list.count;
    return {
        "{\"cameras\":" + list.json + (leftOut > 0 ? member("camerasLeftOut", QByteArray::number(leftOut)) : "") + '}',
        {}};
}
