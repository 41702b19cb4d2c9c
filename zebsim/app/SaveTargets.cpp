#include "SaveTargets.h"

#include "Camera.h"
#include "HostDisk.h"
#include "HostNameSource.h"
#include "HostNamedDocument.h"
#include "MediaRoom.h"
#include "SaveTexts.h"
#include "SimControl.h"
#include "SimHost.h"
#include "TextKey.h"
#include "UTL_Exception.h"
#include "UiText.h"

#include <stdexcept>

namespace {

/// A document of which one partition is saved.
class OnePartition : public HostNamedDocument {
public:
    OnePartition(DOC_Interface& document, const Camera* camera, PARTITIONNUMBER partition)
        : HostNamedDocument(document), m_camera(camera), m_partition(partition) {}

    QList<PARTITIONNUMBER> partitions() const override { return {m_partition}; }
    /// That of its recording, whatever partition is in use.
    QList<QVariantMap> customInfo() const override {
        const auto recording = m_camera ? m_camera->recordingOf(m_partition) : std::nullopt;
        return recording ? SimControl::itemsOf(recording->customInfo) : HostNamedDocument::customInfo();
    }

private:
    const Camera* const m_camera;
    const PARTITIONNUMBER m_partition;
};

}  // namespace

std::unique_ptr<NamedDocument> namedPartition(SimHost& host, DOCKEY key, PARTITIONNUMBER partition) {
    DOC_Interface* document = host.docManager().getDocAny(key);
    const Camera* camera = host.cameras().find(key);
    const Camera* recorded = camera && (camera->isFile() || host.isMemoryMode()) ? camera : nullptr;
    return document ? std::make_unique<OnePartition>(*document, recorded, partition) : nullptr;
}

namespace {

/// Composes the names of one recording after those of another.
class Composer {
public:
    Composer(SimHost& host, zeb::FileType type, QDateTime time)
        : m_host(host), m_source(host), m_type(type), m_time(std::move(time)) {}

    /// Of one partition of a camera. Throws.
    TrackTarget targetOf(DOCKEY key, PARTITIONNUMBER partition) {
        const auto document = namedPartition(m_host, key, partition);
        if (!document) {
            throw std::runtime_error(TextKey("the camera is gone").toStdString());
        }
        return TrackTarget::of(m_source, m_type, *document, m_time);
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
    HostNameSource m_source;
    const zeb::FileType m_type;
    const QDateTime m_time;
};

/// Without tracks.
SaveOrders ordersOf(SimHost& host, zeb::FileType type) {
    const auto pref = [&host](const QString& key) { return host.prefs().value(key); };
    SaveOrders orders = chosenOrders(pref, nameFamily(type));
    orders.encoder = VideoEncoder::installed();
    orders.diskFault = diskFaultOf(host);
    return orders;
}

}  // namespace

std::function<QString(const QString& path, qint64 bytes)> diskFaultOf(SimHost& host) {
    return [&host, room = std::make_shared<MediaRoom>(host.shelf())](const QString& path, qint64 bytes) {
        const QString planted = host.faults().suffer(FaultPlan::Disk, "write", host.clock());
        return planted.isEmpty() ? room->fault(path, bytes) : planted;
    };
}

zeb::FileType fileType(const SaveTrack& track) {
    return track.isLayout ? zeb::LayoutFile : track.isConversion ? zeb::ConvertedFile : zeb::ImageFile;
}

SavePlan composePlan(SimHost& host, const std::vector<SaveTrack>& tracks, const QStringList& absent,
                     const QDateTime& time) {
    const HostCalls::Own own;
    SaveOrders orders = ordersOf(host, fileType(tracks.front()));
    orders.absent = absent;
    Composer composer(host, fileType(tracks.front()), time);
    std::vector<TrackTarget> targets;
    QList<PlanEntry> known;
    const auto leaveOut = [&](const QString& name, const QString& reason) {
        known.append({PlanEntry::LeftOut, name, {}, 0, reason});
        orders.absent.append(leftOutText(known.last()));
    };
    for (const SaveTrack& wanted : tracks) {
        SaveTrack track = wanted;
        track.sources.clear();
        for (const SaveSource& source : wanted.sources) {
            const QString reason = source.absence(host.cameras());
            if (reason.isEmpty()) {
                track.sources.push_back(source);
            } else {
                leaveOut(wanted.isLayout ? source.name() : wanted.name, reason);
            }
        }
        if (track.sources.empty()) {
            continue;
        }
        try {
            targets.push_back(composer.targetOf(track));
            orders.add(track);
        } catch (const UTL_Exception& e) {
            known.append({PlanEntry::NoName, track.name, {}, 0, QString::fromUtf8(e.what())});
        } catch (const std::exception& e) {
            leaveOut(track.name, QString::fromUtf8(e.what()));
        }
    }
    HostDisk disk(host.shelf(), host.cameras());
    return planOf(std::move(orders), targets, disk, known);
}

QString snapShotStem(SimHost& host, DOCKEY key, const QDateTime& time) {
    const HostCalls::Own own;
    const NamePromises::Save alone(host.saver().promises());
    const Camera* camera = host.cameras().find(key);
    const PARTITIONNUMBER partition = camera ? camera->get(&CameraState::partition) : 1;
    const TrackTarget target = Composer(host, zeb::SnapShotFile, time).targetOf(key, partition);
    const QList<PlanEntry> faults = faultsOf(target, camera ? camera->name() : QString());
    if (!faults.isEmpty()) {
        throw std::runtime_error(entryText(faults.first()).toStdString());
    }
    return target.stem();
}
