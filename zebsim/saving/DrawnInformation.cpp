#include "DrawnInformation.h"

#include "OneLine.h"
#include "SaveTrack.h"

namespace {

constexpr int Lines = 7;

/// As the preferences name them, in the order of `Item`.
const QStringList& names() {
    static const QStringList list = {"File name",     "Camera name", "Frame number", "Time",   "Record rate",
                                     "Shutter speed", "Resolution",  "Date",         "Comment"};
    return list;
}

/// Items as "File name:1,Time:0"; what is unknown is passed over.
std::vector<DrawnInformation::Item> lineOf(const QString& text) {
    std::vector<DrawnInformation::Item> line;
    for (const QString& item : text.split(QLatin1Char(','))) {
        const int name = names().indexOf(item.section(QLatin1Char(':'), 0, 0).trimmed());
        if (name >= 0 && item.section(QLatin1Char(':'), 1).trimmed() == QLatin1String("1")) {
            line.push_back(DrawnInformation::Item(name));
        }
    }
    return line;
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
                return QString::number(double(track.time(index)) / 1e6, 'f', 6) % QStringLiteral(" s");
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

DrawnInformation DrawnInformation::chosen(const PrefReader& pref, const QString& family) {
    DrawnInformation information;
    for (int i = 0; i < Lines && pref(family % QStringLiteral("saveinfo")).toBool(); ++i) {
        information.lines.push_back(lineOf(pref(QStringLiteral("saveinfo/display%1").arg(i)).toString()));
    }
    return information;
}
