#include "DrawnInformation.h"

#include "OneLine.h"
#include "SaveTrack.h"
#include "TextKey.h"

namespace {

QString clockText(qint64 microseconds) {
    constexpr qint64 InSecond = 1000000;
    const qint64 seconds = qAbs(microseconds) / InSecond;
    const auto digits = [](qint64 number, int count) {
        return QString::number(number).rightJustified(count, QLatin1Char('0'));
    };
    return (microseconds < 0 ? "-" : "") % digits(seconds / 3600, 2) % ':' % digits(seconds / 60 % 60, 2) % ':' %
           digits(seconds % 60, 2) % '.' % digits(qAbs(microseconds) % InSecond, 6);
}

QString secondsText(qint64 microseconds) {
    return QString::number(double(microseconds) / 1e6, 'f', 6) % QStringLiteral(" s");
}

QString ofSource(DrawnInformation::Item item, const SaveSource& source) {
    const Recording& recording = source.recording();
    switch (item) {
        case DrawnInformation::CameraName:
            return source.name();
        case DrawnInformation::RecordRate:
            return QStringLiteral("%1 fps").arg(recording.rate);
        case DrawnInformation::ShutterSpeed:
            return QStringLiteral("1/%1 s").arg(recording.shutter);
        case DrawnInformation::Resolution:
            return QStringLiteral("%1 x %2").arg(recording.resolution.width()).arg(recording.resolution.height());
        default:
            return source.comment();
    }
}

}  // namespace

QStringList DrawnInformation::texts(const SaveTrack& track, int index, const QSet<int>& lost, const QString& file,
                                    const QDateTime& date) const {
    const auto textOf = [&](Item item) -> QString {
        switch (item) {
            case FileName:
                return file;
            case FrameNumber:
                return QStringLiteral("# %1").arg(track.number(index));
            case Time:
                return isTimeOfClock ? clockText(track.time(index)) : secondsText(track.time(index));
            case Date:
                return date.toString(QStringLiteral("yyyy-MM-dd HH:mm:ss"));
            default:
                break;
        }
        QStringList ofAll;
        for (int place = 0; place < int(track.sources.size()); ++place) {
            const QString text = ofSource(item, track.sources[std::size_t(place)]);
            ofAll << (lost.contains(place) || ofAll.contains(text) ? QStringList() : QStringList(text));
        }
        ofAll.removeAll({});
        return ofAll.join(QStringLiteral(", "));
    };
    QStringList all;
    for (const std::vector<Item>& line : lines) {
        QStringList texts;
        for (const Item item : line) {
            texts << inOneLine(textOf(item));
        }
        texts.removeAll({});
        all << (texts.isEmpty() ? QStringList() : QStringList(texts.join(QStringLiteral("   "))));
    }
    return all;
}

const QStringList& DrawnInformation::itemNames() {
    static const QStringList list = {TextKey("File name"),  TextKey("Camera name"), TextKey("Frame number"),
                                     TextKey("Time"),       TextKey("Record rate"), TextKey("Shutter speed"),
                                     TextKey("Resolution"), TextKey("Date"),        TextKey("Comment")};
    return list;
}

QString DrawnInformation::lineKey(int line) {
    return QStringLiteral("saveinfo/display%1").arg(line);
}

/// Items as "File name:1,Time:0"; what is unknown is passed over.
std::vector<DrawnInformation::Item> DrawnInformation::lineOf(const QString& text) {
    std::vector<Item> line;
    const QStringList items = text.split(QLatin1Char(','));
    for (const QString& item : items) {
        const int name = itemNames().indexOf(item.section(QLatin1Char(':'), 0, 0).trimmed());
        if (name >= 0 && item.section(QLatin1Char(':'), 1).trimmed() == QLatin1String("1")) {
            line.push_back(Item(name));
        }
    }
    return line;
}

DrawnInformation DrawnInformation::chosen(const PrefReader& pref, const QString& family) {
    DrawnInformation information;
    for (int i = 0; i < Lines && pref(family % QStringLiteral("saveinfo")).toBool(); ++i) {
        information.lines.push_back(lineOf(pref(lineKey(i)).toString()));
    }
    information.isTimeOfClock = pref(QLatin1String(TimeFormKey)) == "clock";
    return information;
}
