#include "FileText.h"

#include "CameraState.h"
#include "Recording.h"

#include <algorithm>
#include <functional>

namespace {

using Parts = QList<QPair<QString, QString>>;

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

void addMoment(Parts& parts, const FrameMoment& moment, const char* frame, const char* time) {
    parts.append({QLatin1String(frame), QString::number(moment.number)});
    if (moment.time) {
        parts.append({QLatin1String(time), secondsText(*moment.time)});
    }
}

/// All that are numbers.
Parts numbersOf(const FrameFacts& facts) {
    Parts parts = {{QStringLiteral("rate"), QString::number(facts.rate)},
                   {QStringLiteral("shutter"), QString::number(facts.shutter)}};
    addMoment(parts, facts.first, "frame", "time");
    if (facts.last) {
        addMoment(parts, *facts.last, "lastFrame", "lastTime");
    }
    return parts;
}

QByteArray objectOf(const FrameFacts& facts, int room) {
    QByteArray object = "{\"camera\":" + quoted(facts.camera.left(MostLetters));
    const Parts numbers = numbersOf(facts);
    for (const auto& [name, number] : numbers) {
        object += ",\"" + name.toLatin1() + "\":" + number.toLatin1();
    }
    const QList<CustomItem> items = facts.info.shown();
    object += ",\"items\":";
    return object +
           listOf(
               items.size(), [&](int i) { return itemText(items.at(i)); }, room - object.size(), "itemsLeftOut") +
           '}';
}

}  // namespace

FrameFacts FrameFacts::live(const CameraState& state, const CameraFrame& frame) {
    return {frame.camera, state.rate, state.shutter, {frame.number, {}}, {}, state.customInfo};
}

FrameFacts FrameFacts::recorded(const Recording& recording, const CameraFrame& frame) {
    const qint64 fromTrigger = frame.number + recording.zero - recording.trigger;
    const qint64 time = recording.rate > 0 ? fromTrigger * 1000000 / recording.rate : 0;
    return {frame.camera, recording.rate, recording.shutter, {frame.number, time}, {}, recording.customInfo};
}

FileText FileText::of(const FrameFacts& facts) {
    FileText text{objectOf(facts, MostBytes), numbersOf(facts)};
    text.parts.prepend({QStringLiteral("camera"), facts.camera.left(MostLetters)});
    text.parts.append(
        {QStringLiteral("items"), facts.info.shownTexts().join(QLatin1Char('\n')).left(MostBytes / LetterBytes)});
    return text;
}

FileText FileText::ofLayout(const QList<FrameFacts>& cameras) {
    const int room = MostBytes / std::max(1, cameras.size());
    const auto text = [&](int i) { return objectOf(cameras.at(i), room); };
    return {"{\"cameras\":" + listOf(cameras.size(), text, MostBytes, "camerasLeftOut") + '}', {}};
}
