#include "SaveTargets.h"

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

#include <algorithm>
#include <exception>

namespace {

/// Types as the names of files know them.
constexpr int ExportType = 1;
constexpr int LayoutType = 4;
constexpr int SnapShotType = 7;

int typeOf(const SaveTrack& track) {
    return track.isLayout ? LayoutType : ExportType;
}

class TypedSource : public HostNameSource {
public:
    TypedSource(SimHost& host, const TypedPrefs& typed) : HostNameSource(host), m_host(host), m_typed(typed) {}

    QVariant pref(const QString& key) const override {
        const auto typed = m_typed.find(key);
        return typed == m_typed.end() ? m_host.prefs().value(key) : *typed;
    }

private:
    const SimHost& m_host;
    const TypedPrefs& m_typed;
};

/// A document of which some partitions are saved.
class ChosenDocument : public HostNamedDocument {
public:
    ChosenDocument(DOC_Interface& document, QList<PARTITIONNUMBER> chosen)
        : HostNamedDocument(document), m_chosen(std::move(chosen)) {}

    QList<PARTITIONNUMBER> partitions() const override { return m_chosen; }

private:
    const QList<PARTITIONNUMBER> m_chosen;
};

/// Takes what was composed apart again, for the plan looks at each part.
TrackTarget targetOf(const TargetPaths& paths, PARTITIONNUMBER partition, const QString& root) {
    const QString folder = paths.folders.value(partition);
    const QString name = paths.paths.value(partition).mid(folder.size());
    TrackTarget target{root, paths.groups.value(partition), {}, name};
    const QString above = target.folder();
    if (!folder.startsWith(above)) {
        return {folder, {}, {}, name};
    }
    target.sub = folder.mid(above.size());
    target.sub.chop(target.sub.endsWith(QLatin1Char('/')) ? 1 : 0);
    return target;
}

QList<PARTITIONNUMBER> partitionsOf(const std::vector<SaveTrack>& tracks, DOCKEY key) {
    QList<PARTITIONNUMBER> partitions;
    for (const SaveTrack& track : tracks) {
        if (track.sources.front().key() == key) {
            partitions.append(track.sources.front().partition());
        }
    }
    return partitions;
}

/// Composes the names of one camera after those of another.
class Composer {
public:
    /// `type` as the names of files know it.
    Composer(SimHost& host, int type, const TypedPrefs& typed, QDateTime time)
        : m_host(host), m_source(host, typed), m_type(type), m_time(std::move(time)) {}

    /// Of one partition; `all` are those of the camera that are saved. Throws.
    TrackTarget targetOf(DOCKEY key, PARTITIONNUMBER partition, const QList<PARTITIONNUMBER>& all) {
        compose(key, all);
        // A layout has one path, whatever the partition.
        const auto path = m_type == LayoutType ? m_paths.paths.begin() : m_paths.paths.find(partition);
        if (path == m_paths.paths.end()) {
            std::rethrow_exception(m_failure);
        }
        return ::targetOf(m_paths, path.key(), m_root);
    }

private:
    void compose(DOCKEY key, const QList<PARTITIONNUMBER>& partitions) {
        if (key == m_key) {
            return;
        }
        m_key = key;
        m_paths = {};
        m_failure = std::make_exception_ptr(std::runtime_error(TextKey("the camera is gone").toStdString()));
        try {
            if (DOC_Interface* document = m_host.docManager().getDocAny(key)) {
                const ChosenDocument chosen(*document, partitions);
                m_root = rootFolder(m_source, m_type, &chosen);
                composeTargets(m_source, m_type, &chosen, true, m_time, 0, m_paths);
            }
        } catch (const std::exception&) {
            m_failure = std::current_exception();
        }
    }

    SimHost& m_host;
    TypedSource m_source;
    const int m_type;
    const QDateTime m_time;
    /// Of the camera composed last.
    DOCKEY m_key = zeb::NoDocKey;
    TargetPaths m_paths;
    QString m_root;
    std::exception_ptr m_failure;
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
SaveOrders ordersOf(const SimHost& host, bool isLayout, const TypedPrefs& typed) {
    const QString family = prefFamily(isLayout);
    const auto pref = [&](const char* suffix) {
        const QString key = family % QLatin1String(suffix);
        return typed.value(key, host.prefs().value(key));
    };
    SaveOrders orders;
    orders.format = chosenFormat(pref);
    orders.digits = std::max(1, pref("filenameseqdigits").toInt());
    orders.encoder = VideoEncoder::installed();
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
    Composer composer(host, typeOf(tracks.front()), typed, time);
    std::vector<TrackTarget> targets;
    QList<PlanEntry> known;
    for (const SaveTrack& track : tracks) {
        try {
            const SaveSource& source = track.sources.front();
            targets.push_back(composer.targetOf(source.key(), source.partition(), partitionsOf(tracks, source.key())));
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

QString composedPath(SimHost& host, SaveTrack track, const TypedPrefs& typed, const QDateTime& time) {
    const HostCalls::Own own;
    const NamePromises::Save alone(host.saver().promises());
    const SaveOrders orders = ordersOf(host, track.isLayout, typed);
    try {
        const SaveSource& source = track.sources.front();
        Composer composer(host, typeOf(track), typed, time);
        track.stem = composer.targetOf(source.key(), source.partition(), {source.partition()}).stem();
        return QDir::toNativeSeparators(fileOf(track, orders.format, orders.digits, track.from));
    } catch (const UTL_Exception& e) {
        return uiText(QString::fromUtf8(e.what()));
    } catch (const std::exception& e) {
        return uiText(QString::fromUtf8(e.what()));
    }
}

QString snapShotStem(SimHost& host, DOCKEY key, const QDateTime& time) {
    const HostCalls::Own own;
    const NamePromises::Save alone(host.saver().promises());
    return Composer(host, SnapShotType, {}, time).targetOf(key, 1, {1}).stem();
}
