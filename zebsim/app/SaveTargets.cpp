#include "SaveTargets.h"

#include "Camera.h"
#include "HostNameSource.h"
#include "HostNamedDocument.h"
#include "SaveTexts.h"
#include "SimHost.h"
#include "TargetDisk.h"
#include "TargetPaths.h"
#include "TextKey.h"
#include "UTL_Exception.h"
#include "UiText.h"

#include <QDir>

#include <stdexcept>

namespace {

/// Types as the names of files know them.
constexpr int ExportType = 1;
constexpr int LayoutType = 4;
constexpr int SnapShotType = 7;
/// Of a frame's number.
constexpr int MostDigits = 20;

int typeOf(const SaveTrack& track) {
    return track.isLayout ? LayoutType : ExportType;
}

class TypedSource : public HostNameSource {
public:
    TypedSource(SimHost& host, const TypedPrefs& typed, bool isPreview)
        : HostNameSource(host), m_host(host), m_typed(typed), m_isPreview(isPreview) {}

    QVariant pref(const QString& key) const override {
        const auto typed = m_typed.find(key);
        return typed == m_typed.end() ? m_host.prefs().value(key) : *typed;
    }
    /// Once a save, and not at each key that is typed.
    void noteTaken(const QString& path) const override {
        if (!m_isPreview) {
            HostNameSource::noteTaken(path);
        }
    }

private:
    const SimHost& m_host;
    const TypedPrefs& m_typed;
    const bool m_isPreview;
};

/// A document of which one partition is saved.
class OnePartition : public HostNamedDocument {
public:
    OnePartition(DOC_Interface& document, PARTITIONNUMBER partition)
        : HostNamedDocument(document), m_partition(partition) {}

    QList<PARTITIONNUMBER> partitions() const override { return {m_partition}; }

private:
    const PARTITIONNUMBER m_partition;
};

/// Composes the names of one recording after those of another.
class Composer {
public:
    /// `type` as the names of files know it.
    Composer(SimHost& host, int type, const TypedPrefs& typed, bool isPreview, QDateTime time)
        : m_host(host), m_source(host, typed, isPreview), m_type(type), m_time(std::move(time)) {}

    /// Of one partition of a camera. Throws.
    TrackTarget targetOf(DOCKEY key, PARTITIONNUMBER partition) {
        DOC_Interface* document = m_host.docManager().getDocAny(key);
        if (document == nullptr) {
            throw std::runtime_error(TextKey("the camera is gone").toStdString());
        }
        const OnePartition named(*document, partition);
        TargetPaths paths;
        composeTargets(m_source, m_type, &named, true, m_time, 0, paths);
        const QString folder = paths.folders.first();
        TrackTarget target{rootFolder(m_source, m_type, &named), paths.groups.value(partition),
                           paths.subs.value(partition), paths.paths.first().mid(folder.size())};
        // All go into a substitute folder, whatever their own.
        return target.folder() == folder ? target : TrackTarget{folder, {}, {}, target.name};
    }
    /// A layout is called after the first of its cameras that tells what is needed.
    TrackTarget targetOf(const SaveTrack& track) {
        for (std::size_t i = 0; i + 1 < track.sources.size(); ++i) {
            try {
                return targetOf(track.sources[i].key(), track.sources[i].partition());
            } catch (const UTL_Exception&) {
                throw;
            } catch (const std::exception&) {
                continue;
            }
        }
        return targetOf(track.sources.back().key(), track.sources.back().partition());
    }

private:
    SimHost& m_host;
    TypedSource m_source;
    const int m_type;
    const QDateTime m_time;
};

SaveFormat chosenFormat(const std::function<QVariant(const char*)>& pref) {
    static const QHash<QString, TiffCompression> compressions = {{QStringLiteral("none"), TiffCompression::None},
                                                                 {QStringLiteral("deflate"), TiffCompression::Deflate}};
    SaveFormat format = saveFormat(pref("format").toString());
    const QString kind = format.id % QLatin1Char('/');
    const auto option = [&](const char* suffix) { return pref((kind % QLatin1String(suffix)).toLatin1().constData()); };
    PictureOptions& options = format.options;
    options.depth = option("depth").toInt() == 16 ? 16 : 8;
    options.isMultiPage = option("multipage").toBool();
    options.compression = option("packbits").toBool()
                              ? TiffCompression::PackBits
                              : compressions.value(option("compression").toString(), options.compression);
    const QVariant quality = option("compressquality");
    options.jpegQuality = quality.isValid() ? qBound(0, quality.toInt(), 100) : options.jpegQuality;
    return format;
}

/// Without tracks.
SaveOrders ordersOf(SimHost& host, bool isLayout, const TypedPrefs& typed) {
    const QString family = prefFamily(isLayout);
    const auto pref = [&](const char* suffix) {
        const QString key = family % QLatin1String(suffix);
        return typed.value(key, host.prefs().value(key));
    };
    SaveOrders orders;
    orders.format = chosenFormat(pref);
    orders.digits = qBound(1, pref("filenameseqdigits").toInt(), MostDigits);
    orders.encoder = VideoEncoder::installed();
    orders.diskFault = [&host] { return host.faults().suffer(FaultPlan::Disk, "write", host.clock()); };
    return orders;
}

}  // namespace

QString prefFamily(bool isLayout) {
    return isLayout ? QStringLiteral("layout/") : QStringLiteral("export/");
}

SavePlan composePlan(SimHost& host, const std::vector<SaveTrack>& tracks, const QStringList& absent,
                     const TypedPrefs& typed, const QDateTime& time) {
    const HostCalls::Own own;
    SaveOrders orders = ordersOf(host, tracks.front().isLayout, typed);
    orders.absent = absent;
    Composer composer(host, typeOf(tracks.front()), typed, false, time);
    std::vector<TrackTarget> targets;
    QList<PlanEntry> known;
    for (const SaveTrack& track : tracks) {
        try {
            targets.push_back(composer.targetOf(track));
            orders.tracks.push_back(track);
        } catch (const UTL_Exception& e) {
            known.append({PlanEntry::NoName, track.name, {}, 0, QString::fromUtf8(e.what())});
        } catch (const std::exception& e) {
            known.append({PlanEntry::LeftOut, track.name, {}, 0, QString::fromUtf8(e.what())});
            orders.absent.append(leftOutText(known.last()));
        }
    }
    RealDisk disk;
    return planOf(std::move(orders), targets, disk, known);
}

QString composedPath(SimHost& host, const std::vector<SaveTrack>& tracks, std::size_t shown, const TypedPrefs& typed,
                     const QDateTime& time) {
    const HostCalls::Own own;
    const NamePromises::Save alone(host.saver().promises());
    SaveTrack track = tracks[shown];
    const SaveOrders orders = ordersOf(host, track.isLayout, typed);
    Composer composer(host, typeOf(track), typed, true, time);
    for (std::size_t i = 0; i <= shown; ++i) {
        try {
            track.stem = composer.targetOf(tracks[i]).stem();
        } catch (const std::exception& e) {
            if (i == shown) {
                return uiText(QString::fromUtf8(e.what()));
            }
        }
    }
    return QDir::toNativeSeparators(fileOf(track, orders.format, orders.digits, track.from));
}

QString snapShotStem(SimHost& host, DOCKEY key, const QDateTime& time) {
    const HostCalls::Own own;
    const NamePromises::Save alone(host.saver().promises());
    const TrackTarget target = Composer(host, SnapShotType, {}, false, time).targetOf(key, 1);
    const Camera* camera = host.cameras().find(key);
    const QList<PlanEntry> faults = faultsOf(target, camera ? camera->name() : QString());
    if (!faults.isEmpty()) {
        throw std::runtime_error(entryText(faults.first()).toStdString());
    }
    return target.stem();
}
