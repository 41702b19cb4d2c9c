#include "SaveJob.h"

#include "SavePipeline.h"

#include <utility>

namespace {

constexpr int TellEveryMs = 100;

}  // namespace

SaveJob::SaveJob(const CameraBank& cameras, SaveOrders orders) : m_cameras(cameras), m_orders(std::move(orders)) {
    for (const QString& line : m_orders.absent) {
        SaveOutcome absent;
        absent.end = SaveOutcome::Absent;
        absent.reason = line;
        m_outcomes.append(absent);
    }
    m_last.resize(m_orders.tracks.size());
    connect(&m_timer, &QTimer::timeout, this, &SaveJob::progressed);
}

SaveJob::~SaveJob() = default;

void SaveJob::start() {
    const auto finishLater = [this] {
        QMetaObject::invokeMethod(
            this, [this] { finish(); }, Qt::QueuedConnection);
    };
    m_pipeline = std::make_unique<SavePipeline>(m_cameras, m_orders, finishLater);
    m_timer.start(TellEveryMs);
}

void SaveJob::cancel() {
    if (m_pipeline) {
        m_pipeline->stop();
    }
}

std::vector<int> SaveJob::done() const {
    return m_pipeline ? m_pipeline->done() : m_last;
}

void SaveJob::finish() {
    m_timer.stop();
    m_last = done();
    const QList<SaveOutcome> outcomes = m_pipeline->outcomes();
    m_pipeline.reset();
    m_outcomes += outcomes;
    for (const SaveOutcome& outcome : outcomes) {
        const SaveTrack* track = outcome.track < 0 ? nullptr : &m_orders.tracks[std::size_t(outcome.track)];
        // A layout shows less than the cameras hold, and so does a range of which frames are left out.
        if (track != nullptr && outcome.end == SaveOutcome::Saved && track->isWhole()) {
            track->sources.front().noteSaved();
        }
    }
    Q_EMIT finished();
}
