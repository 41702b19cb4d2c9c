#include "InformationReader.h"

#include "JsonError.h"
#include "JsonNode.h"
#include "PlainState.h"
#include "TextKey.h"
#include "UiText.h"
#include "WholeFile.h"

#include <QSet>

#include <algorithm>
#include <cmath>
#include <limits>

namespace {

constexpr int MostBytes = 16 << 20;
/// The first member tells whose file it is.
constexpr int MarkBytes = 64;
/// Of a frame's number.
constexpr int MostNumber = 1 << 30;
constexpr int MostFrames = 10000000;
constexpr int MostPartitions = 1024;
constexpr int MostSide = 16384;
constexpr qint64 MostPixels = qint64(1) << 26;
constexpr int MostLetters = 255;
constexpr int Most = std::numeric_limits<int>::max();

[[noreturn]] void refuse(const QString& path, const QString& reason) {
    throw JsonError(path % QStringLiteral(": ") % uiText(reason));
}

/// Of a file of ours.
QByteArray contentOf(const QString& path) {
    QByteArray text;
    const QString why = readPlainFile(path, MostBytes + 1, text);
    if (!why.isEmpty()) {
        refuse(path, why);
    }
    if (!text.left(MarkBytes).contains("\"zebsim\"")) {
        refuse(path, TextKey("it is no recording of this program"));
    }
    if (text.size() > MostBytes) {
        refuse(path, TextKey("it is larger than any that this program has written"));
    }
    return text;
}

QPoint pairOf(const JsonNode& node) {
    const QList<int> numbers = node.numbers(-MostNumber, MostNumber);
    if (numbers.size() != 2) {
        node.fail(QStringLiteral("two numbers are expected"));
    }
    return {numbers[0], numbers[1]};
}

QSize resolutionOf(const JsonNode& node) {
    const QPoint pair = pairOf(node);
    const bool isSize = pair.x() > 0 && pair.y() > 0 && pair.x() <= MostSide && pair.y() <= MostSide;
    if (!isSize || qint64(pair.x()) * pair.y() > MostPixels) {
        node.fail(QStringLiteral("no picture is that large"));
    }
    return {pair.x(), pair.y()};
}

CustomInfo itemsOf(const JsonNode& node) {
    QVariantList items;
    for (const JsonNode& item : node.items()) {
        items.append(item.plain());
    }
    try {
        return CustomInfo::fromPlain(items);
    } catch (const StateError& error) {
        node.fail(error.reason);
    }
}

SaveFormat formatOf(const JsonNode& node, const QString& path) {
    const QString id = node.member(QStringLiteral("id")).text();
    SaveFormat format = saveFormat(id);
    if (format.id != id) {
        node.failAt(QStringLiteral("id"), QStringLiteral("there is no format \"%1\"").arg(id));
    }
    if (format.isVideo()) {
        refuse(path, TextKey("A video can't be opened again."));
    }
    format.options.depth = node.member(QStringLiteral("depth")).number(8, 16);
    format.options.isLower = node.member(QStringLiteral("lower")).flag();
    format.options.isMultiPage = node.member(QStringLiteral("pages")).flag();
    if (format.options.isMultiPage && !format.hasPages) {
        node.failAt(QStringLiteral("pages"), QStringLiteral("a file of this format has none"));
    }
    return format;
}

/// A name leads to nowhere but the folder that it stands in.
QStringList filesOf(const JsonNode& node, int expected) {
    const QStringList names = node.texts();
    if (names.size() != expected) {
        node.fail(QStringLiteral("%1 names are expected").arg(expected));
    }
    const auto isNone = [](const QString& name) {
        const auto isForeign = [](QChar letter) {
            return letter == QLatin1Char('/') || letter == QLatin1Char('\\') || letter == QChar(0);
        };
        return name.isEmpty() || name.size() > MostLetters || name == QLatin1String(".") ||
               name == QLatin1String("..") || std::any_of(name.begin(), name.end(), isForeign);
    };
    const auto wrong = std::find_if(names.begin(), names.end(), isNone);
    if (wrong != names.end()) {
        node.fail(QStringLiteral("\"%1\" is no name of a file in the same folder").arg(*wrong));
    }
    if (QSet<QString>(names.begin(), names.end()).size() != names.size()) {
        node.fail(QStringLiteral("a name stands there twice"));
    }
    return names;
}

/// The frames that stand in the files, and how many there are.
void readFrames(const JsonNode& node, RecordingInformation& information) {
    Recording& recording = information.recording;
    const JsonNode saved = node.member(QStringLiteral("saved"));
    recording.selectedFirst = saved.member(QStringLiteral("first")).number(-MostNumber, MostNumber);
    recording.selectedLast = saved.member(QStringLiteral("last")).number(recording.selectedFirst, MostNumber);
    information.step = saved.member(QStringLiteral("step")).number(1, MostNumber);
    const qint64 frames = (qint64(recording.selectedLast) - recording.selectedFirst) / information.step + 1;
    if (frames > MostFrames) {
        saved.fail(QStringLiteral("no recording is that long"));
    }
    information.frames = int(frames);
    const JsonNode member = node.member(QStringLiteral("range"));
    const QPoint range = pairOf(member);
    if (range.x() > recording.selectedFirst || range.y() < recording.selectedLast) {
        member.fail(QStringLiteral("the frames that were saved are not in it"));
    }
    recording.first = range.x();
    recording.last = range.y();
}

/// Empty where nobody has told it.
QDateTime dateOf(const JsonNode& node) {
    const QDateTime date = QDateTime::fromString(node.text(), Qt::ISODate);
    if (!date.isValid() && !node.text().isEmpty()) {
        node.fail(QStringLiteral("a date as \"2024-01-02T03:04:05\" is expected"));
    }
    return date;
}

}  // namespace

RecordingInformation readInformation(const QString& path) {
    const JsonNode node = JsonNode::fromText(path, contentOf(path));
    const auto member = [&node](const char* name) { return node.member(QLatin1String(name)); };
    if (member("zebsim").text() != QLatin1String("recording")) {
        refuse(path, TextKey("it is no recording of this program"));
    }
    if (member("version").number(1, Most) != RecordingInformation::Version) {
        refuse(path, TextKey("a newer version of this program has written it"));
    }
    RecordingInformation information;
    information.camera = member("camera").text();
    information.address = member("address").text();
    information.model = member("model").text();
    information.comment = member("comment").text();
    information.partitionName = member("partitionName").text();
    information.bits = member("bits").number(8, 16);
    Recording& recording = information.recording;
    recording.rate = static_cast<unsigned int>(member("rate").number(1, Most));
    recording.shutter = member("shutter").number(0, Most);
    recording.resolution = resolutionOf(member("resolution"));
    recording.trigger = member("trigger").number(-MostNumber, MostNumber);
    recording.zero = member("zero").number(-MostNumber, MostNumber);
    recording.partition = PARTITIONNUMBER(member("partition").number(1, MostPartitions));
    recording.customInfo = itemsOf(member("items"));
    // Files that were written before have none.
    recording.shoot = node.has(QStringLiteral("shoot")) ? member("shoot").text() : QString();
    information.date = dateOf(member("date"));
    information.format = formatOf(member("format"), path);
    readFrames(node, information);
    information.files = filesOf(member("files"), information.format.isOneFile() ? 1 : information.frames);
    return information;
}

RecordingInformation asOpened(RecordingInformation information) {
    Recording& recording = information.recording;
    const int step = information.step;
    const int first = recording.selectedFirst;
    const auto nearest = [&](int frame) {
        return step == 1 ? frame : int(std::lround((double(frame) - first) / step));
    };
    recording.first = step == 1 ? first : 0;
    recording.last = recording.first + information.frames - 1;
    recording.selectedFirst = recording.first;
    recording.selectedLast = recording.last;
    recording.trigger = nearest(recording.trigger);
    recording.zero = nearest(recording.zero);
    recording.rate = std::max(1U, static_cast<unsigned int>(std::lround(double(recording.rate) / step)));
    information.step = 1;
    return information;
}
