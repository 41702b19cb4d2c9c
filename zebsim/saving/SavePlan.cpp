#include "SavePlan.h"

#include "FileNameRules.h"
#include "TargetDisk.h"
#include "TargetPaths.h"
#include "TextKey.h"
#include "VideoTrials.h"

#include <QDir>
#include <QFile>
#include <QHash>

#include <algorithm>
#include <utility>

namespace {

constexpr int MostBytesOfName = 255;
constexpr int MostBytesOfPath = 4095;
/// Pictures differ in size, and others write to the disk as well.
constexpr double Reserve = 1.25;
constexpr qint64 LeastReserve = 16 << 20;

qint64 pixelsOf(const QSize& size) {
    return qint64(size.width()) * size.height();
}

int bytesIn(const QString& name) {
    return QFile::encodeName(name).size();
}

bool hasControl(const QString& text) {
    return std::any_of(text.begin(), text.end(),
                       [](QChar letter) { return letter.category() == QChar::Other_Control; });
}

/// Goes through the tracks one by one and writes down what is to be told of each.
class Planner {
public:
    Planner(SavePlan& plan, TargetDisk& disk) : m_plan(plan), m_disk(disk) {}

    void look(const TrackTarget& target, const SaveTrack& track, qint64 bytes) {
        m_plan.entries += faultsOf(target, track.name);
        if (!QDir::isAbsolutePath(target.root)) {
            return;
        }
        lookAtFolder(track.name, target.folder(), bytes);
        lookAtLength(track);
        lookForOthers(target, track);
        lookForOld(target, track);
    }

    void lookAtSpace() {
        for (const Space& fileSystem : std::as_const(m_space)) {
            if (fileSystem.needed > fileSystem.available) {
                PlanEntry entry{PlanEntry::NoSpace, {}, fileSystem.folder, fileSystem.needed};
                entry.available = fileSystem.available;
                m_plan.entries.append(entry);
            }
        }
    }

private:
    struct Space {
        QString folder;
        qint64 needed = LeastReserve;
        qint64 available = 0;
    };

    /// `camera` is empty for what concerns all.
    void add(PlanEntry::Kind kind, const QString& camera, const QString& path, qint64 count = 0,
             const QString& detail = {}) {
        m_plan.entries.append({kind, camera, path, count, detail});
    }

    void lookAtFolder(const QString& camera, const QString& path, qint64 bytes) {
        const TargetDisk::Folder folder = m_disk.folder(path);
        if (folder.state != TargetDisk::Folder::Impossible) {
            Space& space = m_space[folder.fileSystem];
            space.folder = space.folder.isEmpty() ? path : space.folder;
            space.needed += bytes;
            space.available = folder.available;
        }
        if (m_folders.contains(path)) {
            return;
        }
        m_folders.insert(path);
        const int there = m_disk.namesIn(path).size();
        switch (folder.state) {
            case TargetDisk::Folder::There:
                if (there > 0) {
                    add(PlanEntry::FolderHoldsFiles, {}, path, there);
                }
                break;
            case TargetDisk::Folder::IsMade:
                add(PlanEntry::FolderIsMade, {}, path);
                break;
            case TargetDisk::Folder::ReadOnly:
                add(PlanEntry::ReadOnly, camera, path);
                break;
            case TargetDisk::Folder::Impossible:
                add(PlanEntry::NoFolder, camera, path);
                break;
        }
    }

    /// The longest number stands at an end of the range.
    void lookAtLength(const SaveTrack& track) {
        int longest = 0;
        QString file;
        for (const int index : {track.from, track.frames() - 1}) {
            const QString path = m_plan.orders.fileOf(track, index);
            if (bytesIn(path) > longest) {
                longest = bytesIn(path);
                file = path;
            }
        }
        const QStringList parts = file.split(QLatin1Char('/'));
        const bool isLong = std::any_of(parts.begin(), parts.end(),
                                        [](const QString& part) { return bytesIn(part) > MostBytesOfName; });
        if (isLong || longest > MostBytesOfPath) {
            add(PlanEntry::PathTooLong, track.name, file);
        }
    }

    /// Two ways to one folder lead to one file.
    void lookForOthers(const TrackTarget& target, const SaveTrack& track) {
        const QString key = fileKey(m_disk.canonical(target.folder()) % target.name);
        const auto other = m_stems.find(key);
        if (other != m_stems.end()) {
            add(PlanEntry::WrittenTwice, track.name, m_plan.orders.fileOf(track, track.from), 0, *other);
        } else {
            m_stems.insert(key, track.name);
        }
    }

    void lookForOld(const TrackTarget& target, const SaveTrack& track) {
        const QStringList& names = m_disk.namesIn(target.folder());
        const QHash<QString, int> own = namesOf(target, track, names);
        if (own.isEmpty()) {
            return;
        }
        const int first = *std::min_element(own.begin(), own.end());
        for (auto name = own.keyBegin(); name != own.keyEnd(); ++name) {
            const QString path = target.folder() + *name;
            if (!m_disk.isPlainFile(path)) {
                add(PlanEntry::NoFile, track.name, path);
                return;
            }
            m_plan.orders.mayReplace.insert(path);
        }
        add(PlanEntry::Exists, track.name, m_plan.orders.fileOf(track, first), own.size());
    }

    /// Those of `names` that the track would write, each with the index of its frame.
    QHash<QString, int> namesOf(const TrackTarget& target, const SaveTrack& track, const QStringList& names) const {
        QHash<QString, int> own;
        auto name = std::lower_bound(names.begin(), names.end(), target.name);
        const SaveOrders& orders = m_plan.orders;
        for (; name != names.end() && name->startsWith(target.name); ++name) {
            const QString number = name->mid(target.name.size() + 1).section(QLatin1Char('.'), 0, 0);
            const qint64 index = orders.format.isOneFile() ? track.from : track.indexOf(number.toLongLong());
            const bool isInRange = index >= track.from && index < track.frames();
            if (isInRange && orders.fileOf(track, int(index)) == target.folder() + *name) {
                own.insert(*name, int(index));
            }
        }
        return own;
    }

    SavePlan& m_plan;
    TargetDisk& m_disk;
    QHash<QByteArray, Space> m_space;
    QSet<QString> m_folders;
    QHash<QString, QString> m_stems;
};

/// One picture stands for all.
double bytesInPixel(const SaveOrders& orders) {
    const SaveTrack& first = orders.tracks.front();
    return Reserve *
           double(orders.format.expectedSize(orders.picture(first, first.from), first.metadata(first.from),
                                             first.bits())) /
           double(std::max<qint64>(1, pixelsOf(first.size())));
}

}  // namespace

TrackTarget TrackTarget::of(NameSource& source, zeb::FileType type, const NamedDocument& document,
                            const QDateTime& time) {
    TargetPaths paths;
    composeTargets(source, type, &document, true, time, 0, paths);
    const QString folder = paths.folders.first();
    const TrackTarget target{rootFolder(source, type, &document), paths.groups.value(paths.folders.firstKey()),
                             paths.subs.first(), paths.paths.first().mid(folder.size())};
    // All go into a substitute folder, whatever their own.
    return target.folder() == folder ? target : TrackTarget{folder, {}, {}, target.name};
}

QString TrackTarget::folder() const {
    QString path = root;
    for (const QString& part : {group, sub}) {
        if (!path.isEmpty() && !path.endsWith(QLatin1Char('/'))) {
            path += QLatin1Char('/');
        }
        path += part;
    }
    return path.isEmpty() || path.endsWith(QLatin1Char('/')) ? path : QString(path % QLatin1Char('/'));
}

QList<PlanEntry> faultsOf(const TrackTarget& target, const QString& camera) {
    QList<PlanEntry> faults;
    if (!QDir::isAbsolutePath(target.root)) {
        faults.append({PlanEntry::NoFolder, camera, target.root, 0, {}});
    } else if (target.name.isEmpty()) {
        faults.append({PlanEntry::NoName, camera, {}, 0, TextKey("Invalid filename.")});
    }
    const struct {
        QString part;
        QString field;
    } parts[] = {{target.group, TextKey("Group folder")},
                 {target.sub, TextKey("Subfolder")},
                 {target.name, TextKey("File name")}};
    for (const auto& [part, field] : parts) {
        const bool isOwnFolder = part == QLatin1String(".") || part == QLatin1String("..");
        if (!isGoodFileName(part) || hasControl(part) || isOwnFolder) {
            faults.append({PlanEntry::Forbidden, camera, part, 0, field});
        }
    }
    return faults;
}

bool SavePlan::isPossible() const {
    return !orders.tracks.empty() &&
           std::none_of(entries.begin(), entries.end(), [](const PlanEntry& entry) { return entry.isBlocking(); });
}

SavePlan planOf(SaveOrders orders, const std::vector<TrackTarget>& targets, TargetDisk& disk, QList<PlanEntry> known) {
    SavePlan plan{std::move(orders), std::move(known), {}, 0, 0};
    if (plan.orders.tracks.empty()) {
        return plan;
    }
    const SaveFormat& format = plan.orders.format;
    const QString fault = format.isVideo() ? VideoTrials::installed().fault(format.id, format.video) : QString();
    if (!fault.isEmpty()) {
        plan.entries.append({PlanEntry::NoFormat, {}, {}, 0, fault});
    }
    Planner planner(plan, disk);
    const double perPixel = bytesInPixel(plan.orders);
    for (std::size_t i = 0; i < plan.orders.tracks.size(); ++i) {
        SaveTrack& track = plan.orders.tracks[i];
        track.stem = targets[i].stem();
        const qint64 bytes = qint64(double(track.frames() - track.from) * double(pixelsOf(track.size())) * perPixel);
        planner.look(targets[i], track, bytes);
        plan.bytes.push_back(bytes);
        plan.allBytes += bytes;
        plan.files += filesIn(track, plan.orders.format);
    }
    planner.lookAtSpace();
    return plan;
}
