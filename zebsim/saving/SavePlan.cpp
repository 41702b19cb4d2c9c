#include "SavePlan.h"

#include "Companions.h"
#include "FileError.h"
#include "FileNameRules.h"
#include "TargetDisk.h"
#include "TargetPaths.h"
#include "TextKey.h"
#include "VideoTrials.h"

#include <QDir>
#include <QFile>
#include <QHash>
#include <QMap>
#include <QtDebug>

#include <algorithm>
#include <utility>

namespace {

constexpr int MostBytesOfName = 255;
constexpr int MostBytesOfPath = 4095;
/// Pictures differ in size, and others write to the disk as well.
constexpr double Reserve = 1.25;
constexpr qint64 MostKeptFree = 16 << 20;
/// Of what is free, where that is less.
constexpr qint64 PartKeptFree = 64;

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
    Planner(SavePlan& plan, TargetDisk& disk) : m_plan(plan), m_disk(disk) {
        for (const SaveTrack& track : plan.orders.tracks) {
            for (const SaveSource& source : track.sources) {
                for (const QString& path : source.files()) {
                    m_sources.insert(fileKey(path));
                }
            }
        }
    }

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

    /// Once all tracks are known: what stands beside the frames of one must not be called as a frame of any.
    void lookAtCompanions(const SaveTrack& track) {
        for (const QString& path : companionsOf(m_plan.orders, track)) {
            const SaveTrack* const other = trackOfFrame(path);
            if (other != nullptr) {
                add(PlanEntry::WrittenTwice, track.name, path, 0, other->name);
            }
        }
        const QString text = m_plan.orders.thumbnail.value_or(QString());
        if (!isGoodFileName(text) || hasControl(text)) {
            add(PlanEntry::Forbidden, track.name, text, 0, TextKey("Thumbnail"));
        }
    }

    void lookAtSpace() {
        for (const Space& fileSystem : std::as_const(m_space)) {
            const qint64 needed = fileSystem.needed + std::min(MostKeptFree, fileSystem.available / PartKeptFree);
            if (needed > fileSystem.available) {
                PlanEntry entry{PlanEntry::NoSpace, {}, fileSystem.folder, needed};
                entry.available = fileSystem.available;
                m_plan.entries.append(entry);
            }
        }
    }

private:
    struct Space {
        QString folder;
        qint64 needed = 0;
        qint64 available = 0;
    };

    /// `camera` is empty for what concerns all.
    void add(PlanEntry::Kind kind, const QString& camera, const QString& path, qint64 count = 0,
             const QString& detail = {}) {
        m_plan.entries.append({kind, camera, path, count, detail});
    }

    /// That of which a frame would be written to `path`; null when none would.
    const SaveTrack* trackOfFrame(const QString& path) {
        const int end = path.lastIndexOf(m_plan.orders.format.isOneFile() ? QLatin1Char('.') : QLatin1Char('_'));
        const SaveTrack* const track = m_stems.value(keyOf(path.left(end)));
        const int index = track == nullptr ? -1 : indexOf(*track, path.mid(end));
        const bool isSame = index >= 0 && keyOf(m_plan.orders.fileOf(*track, index)) == keyOf(path);
        return isSame ? track : nullptr;
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
        QStringList files = companionsOf(m_plan.orders, track);
        files << m_plan.orders.fileOf(track, track.from) << m_plan.orders.fileOf(track, track.frames() - 1);
        const QString file =
            *std::max_element(files.rbegin(), files.rend(),
                              [](const QString& one, const QString& two) { return bytesIn(one) < bytesIn(two); });
        const QStringList parts = file.split(QLatin1Char('/'));
        const bool isLong = std::any_of(parts.begin(), parts.end(),
                                        [](const QString& part) { return bytesIn(part) > MostBytesOfName; });
        if (isLong || bytesIn(file) > MostBytesOfPath) {
            add(PlanEntry::PathTooLong, track.name, file);
        }
    }

    /// Two ways to one folder lead to one file.
    void lookForOthers(const TrackTarget& target, const SaveTrack& track) {
        const QString key = keyOf(target.stem());
        const SaveTrack* const other = m_stems.value(key);
        if (other != nullptr) {
            add(PlanEntry::WrittenTwice, track.name, m_plan.orders.fileOf(track, track.from), 0, other->name);
        } else {
            m_stems.insert(key, &track);
        }
    }

    void lookForOld(const TrackTarget& target, const SaveTrack& track) {
        const QMap<int, QString> own = namesOf(target, track, m_disk.namesIn(target.folder()));
        if (own.isEmpty()) {
            return;
        }
        for (const QString& name : own) {
            const QString path = target.folder() + name;
            const QString file = m_disk.canonical(target.folder()) % name;
            if (m_sources.contains(fileKey(file)) || m_disk.isOpen(file)) {
                add(PlanEntry::IsOpen, track.name, path);
                return;
            }
            if (!m_disk.isPlainFile(path)) {
                add(PlanEntry::NoFile, track.name, path);
                return;
            }
            m_plan.orders.mayReplace.insert(path);
        }
        add(PlanEntry::Exists, track.name, target.folder() + own.first(), own.size());
    }

    /// Those of `names` that the track would write, by the index of its frame; those beside the frames come last.
    QMap<int, QString> namesOf(const TrackTarget& target, const SaveTrack& track, const QStringList& names) const {
        QMap<int, QString> own;
        auto name = std::lower_bound(names.begin(), names.end(), target.name);
        for (; name != names.end() && name->startsWith(target.name); ++name) {
            const int index = indexOf(track, name->mid(target.name.size()));
            if (index >= track.from && m_plan.orders.fileOf(track, index) == target.folder() + *name) {
                own.insert(index, *name);
            }
        }
        int last = track.frames();
        for (const QString& path : companionsOf(m_plan.orders, track)) {
            const QString companion = path.mid(target.folder().size());
            if (std::binary_search(names.begin(), names.end(), companion)) {
                own.insert(last++, companion);
            }
        }
        return own;
    }

    /// Of the frame whose file's name might end so, as "_00001.png"; -1 for none.
    int indexOf(const SaveTrack& track, const QString& ending) const {
        const QString number = ending.mid(1).section(QLatin1Char('.'), 0, 0);
        const qint64 index = m_plan.orders.format.isOneFile() ? track.from : track.indexOf(number.toLongLong());
        return index >= 0 && index < track.frames() ? int(index) : -1;
    }

    QString keyOf(const QString& path) {
        const int end = path.lastIndexOf(QLatin1Char('/')) + 1;
        return fileKey(m_disk.canonical(path.left(end)) % path.mid(end));
    }

    SavePlan& m_plan;
    TargetDisk& m_disk;
    /// Keys of the files that tracks are made of.
    QSet<QString> m_sources;
    QHash<QByteArray, Space> m_space;
    QSet<QString> m_folders;
    QHash<QString, const SaveTrack*> m_stems;
};

/// One picture stands for all: the first that can be had.
double bytesInPixel(const SaveOrders& orders) {
    constexpr double AtMost = 8;
    for (const SaveTrack& track : orders.tracks) {
        try {
            const qint64 size =
                orders.format.expectedSize(orders.picture(track, track.from), track.metadata(track.from), track.bits());
            return Reserve * double(size) / double(std::max<qint64>(1, pixelsOf(track.size())));
        } catch (const FileError& e) {
            qWarning() << "The size of a save is not reckoned from" << e.file() << e.what();
        }
    }
    return AtMost;
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
        plan.files += plan.orders.filesOf(track);
    }
    for (const SaveTrack& track : plan.orders.tracks) {
        planner.lookAtCompanions(track);
    }
    planner.lookAtSpace();
    return plan;
}
