#include "TrackRun.h"

#include "CameraError.h"
#include "Clock.h"
#include "ClockRows.h"
#include "FailureText.h"
#include "StopSource.h"

#include <QFileInfo>

#include <algorithm>
#include <exception>

namespace {

QString reasonOf(const std::exception_ptr& failure) {
    try {
        std::rethrow_exception(failure);
    } catch (const CameraError& e) {
        return e.reason();
    } catch (...) {
        return currentFailureText();
    }
}

}  // namespace

TrackRun::TrackRun(int number, const SaveOrders& orders, const StopSource& stop)
    : m_number(number),
      m_orders(orders),
      m_track(orders.tracks[std::size_t(number)]),
      m_stop(stop),
      m_sink(FrameSink::of(orders, m_track, stop)),
      m_next(m_track.from) {}

QString TrackRun::folder() const {
    return QFileInfo(m_track.stem).path();
}

bool TrackRun::read(const CameraBank& cameras, int index) {
    std::vector<int> asked;
    for (int source = 0; source < int(m_track.sources.size()); ++source) {
        if (!m_lost.contains(source) && index < m_track.sources[std::size_t(source)].frames()) {
            asked.push_back(source);
        }
    }
    const auto failures = runRows(m_track.sources.front().clock(), int(asked.size()), [&](int row) {
        const StopSource::Carried carried(m_stop);
        m_track.sources[std::size_t(asked[std::size_t(row)])].read(cameras, index);
    });
    for (std::size_t row = 0; row < asked.size() && !m_stop.isStopped(); ++row) {
        if (failures[row]) {
            noteLost(asked[row], index, reasonOf(failures[row]));
        }
    }
    return m_lost.size() < int(m_track.sources.size());
}

void TrackRun::noteLost(int source, int index, const QString& reason) {
    m_lost.insert(source);
    m_lossReason = reason;
    if (m_track.isLayout) {
        const SaveSource& lost = m_track.sources[std::size_t(source)];
        SaveOutcome outcome;
        outcome.name = lost.name();
        outcome.end = SaveOutcome::CameraLost;
        outcome.saved = index - m_track.from;
        outcome.frames = lost.frames() - m_track.from;
        outcome.reason = reason;
        m_lostFromLayout.append(outcome);
    }
}

void TrackRun::hold(Places::Taken place) {
    const std::lock_guard lock(m_mutex);
    m_place = std::move(place);
}

void TrackRun::endAt(int index) {
    std::unique_lock lock(m_mutex);
    m_end = index;
    writeReady(lock);
}

void TrackRun::make(int index, const QSet<int>& lost, Places::Taken place) {
    FrameSink::Step work;
    try {
        work = m_sink->prepare(index, lost);
    } catch (...) {
        // Those before it are to be written first.
        work = [failure = std::current_exception()] { std::rethrow_exception(failure); };
    }
    std::unique_lock lock(m_mutex);
    if (m_failure) {
        return;
    }
    m_ready.emplace(index, Step{std::move(work), std::move(place)});
    writeReady(lock);
}

void TrackRun::writeReady(std::unique_lock<std::mutex>& lock) {
    if (m_isWriting) {
        return;
    }
    m_isWriting = true;
    while (auto step = nextStep()) {
        const int index = m_next;
        const bool isLast = index == m_end;
        lock.unlock();
        const auto failure = failureOf(step->work, index);
        if (isLast || failure) {
            m_sink->drop();
        }
        step.reset();
        lock.lock();
        note(isLast, failure);
    }
    m_isWriting = false;
}

void TrackRun::note(bool isLast, const std::optional<FileError>& failure) {
    if (isLast || failure) {
        m_place.reset();
        m_ready.clear();
    }
    if (!failure) {
        m_next += isLast ? 0 : 1;
        m_isComplete = isLast;
    } else if (!m_stop.isStopped()) {
        m_failure = failure;
    }
}

std::optional<TrackRun::Step> TrackRun::nextStep() {
    if (m_failure || m_isComplete || m_stop.isStopped()) {
        return std::nullopt;
    }
    if (m_next == m_end) {
        return Step{[this] { m_sink->finish(); }, {}};
    }
    const auto ready = m_ready.find(m_next);
    if (ready == m_ready.end()) {
        return std::nullopt;
    }
    return std::move(m_ready.extract(ready).mapped());
}

std::optional<FileError> TrackRun::failureOf(const FrameSink::Step& work, int index) const {
    try {
        work();
        return std::nullopt;
    } catch (const FileError& e) {
        return e;
    } catch (...) {
        return FileError(fileOf(m_track, m_orders.format, m_orders.digits, index), currentFailureText());
    }
}

void TrackRun::fail(const FileError& error) {
    const std::lock_guard lock(m_mutex);
    m_failure = error;
    m_next = m_track.from;
}

bool TrackRun::hasFailed() const {
    const std::lock_guard lock(m_mutex);
    return m_failure.has_value();
}

int TrackRun::done() const {
    const std::lock_guard lock(m_mutex);
    return m_next - m_track.from;
}

int TrackRun::saved() const {
    return m_orders.format.isOneFile() && !m_isComplete ? 0 : m_next - m_track.from;
}

SaveOutcome::End TrackRun::end() const {
    return m_failure                                      ? SaveOutcome::FileFailed
           : !m_isComplete                                ? SaveOutcome::Cancelled
           : m_lost.size() == int(m_track.sources.size()) ? SaveOutcome::CameraLost
                                                          : SaveOutcome::Saved;
}

QList<SaveOutcome> TrackRun::outcomes() const {
    const std::lock_guard lock(m_mutex);
    QList<SaveOutcome> outcomes = m_lostFromLayout;
    SaveOutcome own;
    own.track = m_number;
    own.name = m_track.name;
    own.end = end();
    own.saved = saved();
    own.frames = m_track.frames() - m_track.from;
    own.file = m_failure ? m_failure->file() : QString();
    own.reason = m_failure                            ? QString::fromUtf8(m_failure->what())
                 : own.end == SaveOutcome::CameraLost ? m_lossReason
                                                      : QString();
    outcomes.append(own);
    for (SaveOutcome& outcome : outcomes) {
        outcome.saved = std::min(outcome.saved, own.saved);
        outcome.lastNumber = outcome.saved > 0 ? m_track.number(m_track.from + outcome.saved - 1) : 0;
    }
    return outcomes;
}
