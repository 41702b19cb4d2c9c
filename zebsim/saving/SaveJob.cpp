#include "SaveJob.h"

#include "CameraError.h"
#include "FileError.h"
#include "PictureSink.h"
#include "SaveNames.h"
#include "VideoSink.h"

#include <QDir>
#include <QStorageInfo>

#include <utility>

namespace {

/// While an encoder is at work.
constexpr int LookAgainMs = 10;
/// Pictures differ in size, and others write to the disk as well.
constexpr double Reserve = 1.25;
constexpr qint64 LeastReserve = 16 << 20;

qint64 pixelsOf(const QSize& size) {
    return qint64(size.width()) * size.height();
}

}  // namespace

SaveJob::SaveJob(const CameraBank& cameras, SaveOrders orders, std::function<qint64(const QString& folder)> freeSpace)
    : m_cameras(cameras), m_orders(std::move(orders)), m_freeSpace(std::move(freeSpace)), m_claims(m_orders.ask) {
    for (const QString& line : m_orders.absent) {
        m_outcomes.append({{}, SaveOutcome::Absent, 0, 0, 0, {}, line});
    }
    m_timer.setSingleShot(true);
    connect(&m_timer, &QTimer::timeout, this, &SaveJob::turn);
}

SaveJob::~SaveJob() = default;

qint64 SaveJob::freeSpaceOf(const QString& folder) {
    return QStorageInfo(folder).bytesAvailable();
}

std::optional<SaveRefusal> SaveJob::start() {
    if (!QDir().mkpath(m_orders.folder)) {
        return SaveRefusal();
    }
    const SaveRefusal space{bytesNeeded(), m_freeSpace(m_orders.folder)};
    if (space.available < space.needed) {
        return space;
    }
    m_timer.start(0);
    return std::nullopt;
}

/// One picture stands for all.
qint64 SaveJob::bytesNeeded() const {
    const SaveTrack& first = m_orders.tracks.front();
    const double bytesInPixel =
        double(m_orders.format.expectedSize(first.picture(0), first.metadata(0))) / pixelsOf(first.size());
    double pixels = 0;
    for (const SaveTrack& track : m_orders.tracks) {
        pixels += double(track.frames()) * pixelsOf(track.size());
    }
    return LeastReserve + qint64(pixels * bytesInPixel * Reserve);
}

void SaveJob::turn() {
    bool busy = false;
    try {
        busy = !work();
    } catch (const FileError& e) {
        m_outcome.file = e.file();
        m_outcome.reason = QString::fromUtf8(e.what());
        endTrack(SaveOutcome::FileFailed);
    }
    Q_EMIT progressed();
    if (isRunning()) {
        m_timer.start(busy ? LookAgainMs : 0);
    } else {
        Q_EMIT finished();
    }
}

bool SaveJob::work() {
    if (!m_sink) {
        beginTrack();
    }
    if (m_cancelled || m_claims.isCancelled()) {
        endTrack(SaveOutcome::Cancelled);
    } else if (m_sink->isBusy()) {
        return false;
    } else if (m_closed) {
        if (m_sink->complete()) {
            endTrack(m_outcome.end);
        } else {
            endKept();
        }
    } else if (m_outcome.saved == m_outcome.frames || m_lost.size() == int(track().sources.size())) {
        m_sink->close();
        m_closed = true;
    } else {
        saveFrame();
    }
    return true;
}

void SaveJob::beginTrack() {
    m_outcome.name = track().name;
    m_outcome.frames = track().frames();
    m_lost.clear();
    m_closed = false;
    const QString stem = QDir(m_orders.folder).filePath(track().fileName);
    if (m_orders.format.isVideo()) {
        const QString file = stem % QLatin1Char('.') % m_orders.format.suffix;
        m_sink = std::make_unique<VideoSink>(m_claims, m_orders.encoder, file, track().metadataOfAll());
    } else {
        m_sink = std::make_unique<PictureSink>(m_claims, m_orders.format, stem);
    }
}

void SaveJob::saveFrame() {
    readCameras();
    if (m_lost.size() == int(track().sources.size())) {
        return;
    }
    const int index = m_outcome.saved;
    const qint64 number = track().number(index);
    const FileMetadata metadata = m_orders.format.isVideo() ? FileMetadata() : track().metadata(index, m_lost);
    if (!m_sink->write({track().picture(index, m_lost), frameNumberText(number), metadata})) {
        endKept();
        return;
    }
    m_outcome.lastNumber = number;
    ++m_outcome.saved;
}

void SaveJob::readCameras() {
    for (const SaveSource& source : track().sources) {
        if (m_lost.contains(source.key()) || m_outcome.saved >= source.frames()) {
            continue;
        }
        try {
            source.read(m_cameras, m_outcome.saved);
        } catch (const CameraError& e) {
            cameraLost(source, e.reason());
        }
    }
}

void SaveJob::cameraLost(const SaveSource& source, const QString& reason) {
    m_lost.insert(source.key());
    if (!track().isLayout || m_lost.size() == int(track().sources.size())) {
        m_outcome.end = SaveOutcome::CameraLost;
        m_outcome.reason = reason;
    }
    if (track().isLayout) {
        const int saved = m_outcome.saved;
        m_outcomes.append({source.name(), SaveOutcome::CameraLost, saved, source.frames(), saved - 1, {}, reason});
    }
}

void SaveJob::endKept() {
    endTrack(m_claims.isCancelled() ? SaveOutcome::Cancelled : SaveOutcome::Skipped);
}

void SaveJob::endTrack(SaveOutcome::End end) {
    m_sink.reset();
    m_outcome.end = end;
    // A layout shows less than the cameras hold.
    if (end == SaveOutcome::Saved && !track().isLayout) {
        track().sources.front().noteSaved();
    }
    // A video is there as a whole, or not at all.
    if (m_orders.format.isVideo() && end != SaveOutcome::Saved && end != SaveOutcome::CameraLost) {
        m_outcome.saved = 0;
    }
    m_outcomes.append(std::exchange(m_outcome, {}));
    ++m_track;
}
