#include "TrackRun.h"

#include "CameraError.h"
#include "Clock.h"
#include "ClockRows.h"
#include "Companions.h"
#include "FailureText.h"
#include "ParallelRows.h"
#include "StopSource.h"
#include "TextKey.h"
#include "Threads.h"

#include <QFileInfo>

#include <algorithm>
#include <atomic>
#include <exception>

namespace {

/// After which a camera counts as one that does not answer.
constexpr std::chrono::seconds Silence(5);

QString reasonOf(const std::exception_ptr& failure) {
    try {
        std::rethrow_exception(failure);
    } catch (const CameraError& e) {
        return e.reason();
    } catch (...) {
        return currentFailureText();
    }
}

/// What each row has thrown. The calling thread reads as well, so that it goes without others.
std::vector<std::exception_ptr> readSideBySide(Clock& clock, int rows, const std::function<void(int)>& read) {
    if (clock.isStepped() || rows == 1) {
        return runSteppedRows(clock, rows, read);
    }
    std::vector<std::exception_ptr> failures(std::size_t(rows), nullptr);
    std::atomic<int> next{0};
    const auto work = [&] {
        for (int row = next++; row < rows; row = next++) {
            try {
                read(row);
            } catch (...) {
                failures[std::size_t(row)] = std::current_exception();
            }
        }
    };
    auto others = startThreads(std::size_t(std::clamp(rows, 1, ParallelRows::MostAtOnce) - 1), work);
    work();
    join(others);
    return failures;
}

}  // namespace

TrackRun::TrackRun(int number, const SaveOrders& orders, int mostFrames, const StopSource& stop)
    : m_number(number),
      m_orders(orders),
      m_track(orders.tracks[std::size_t(number)]),
      m_stop(stop),
      m_sink(FrameSink::of(orders, m_track, stop)),
      m_frames(mostFrames),
      m_first(m_track.from),
      m_next(m_track.from) {}

QString TrackRun::folder() const {
    return QFileInfo(m_track.stem).path();
}

bool TrackRun::read(const CameraBank& cameras, int index) {
    std::vector<int> asked;
    for (int source = 0; source < int(m_track.sources.size()); ++source) {
        const std::optional<int> frame = m_track.shown(index, source);
        // What it has handed over is shown on.
        const bool isNew = index == m_track.from || frame != m_track.shown(index - 1, source);
        if (!m_lost.contains(source) && frame && isNew) {
            asked.push_back(source);
        }
    }
    const auto failures = readSideBySide(m_track.sources.front().clock(), int(asked.size()), [&](int row) {
        const StopSource::Carried carried(m_stop);
        const int source = asked[std::size_t(row)];
        m_track.sources[std::size_t(source)].read(cameras, *m_track.shown(index, source));
    });
    for (std::size_t row = 0; row < asked.size() && !m_stop.isStopped(); ++row) {
        if (failures[row]) {
            noteLost(asked[row], index, reasonOf(failures[row]));
        }
    }
    const std::lock_guard lock(m_mutex);
    m_lastRead = std::chrono::steady_clock::now();
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
        outcome.frames = m_track.frames() - m_track.from;
        outcome.reason = reason;
        m_lostFromLayout.append(outcome);
    }
}

void TrackRun::hold(Semaphore::Permit file) {
    const std::lock_guard lock(m_mutex);
    m_file = std::move(file);
    m_isGrowing = true;
    m_lastRead = std::chrono::steady_clock::now();
}

bool TrackRun::isAtWork() const {
    const std::lock_guard lock(m_mutex);
    return m_isGrowing && std::chrono::steady_clock::now() - m_lastRead < Silence;
}

void TrackRun::endAt(int index) {
    std::unique_lock lock(m_mutex);
    m_end = index;
    writeReady(lock);
}

void TrackRun::make(int index, const QSet<int>& lost, FrameRoom room) {
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
    m_ready.emplace(index, Step{std::move(work), std::move(room)});
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
        m_file.reset();
        m_isGrowing = false;
        m_ready.clear();
    }
    if (!failure) {
        m_next += isLast ? 0 : 1;
        m_isClosed = m_isFinished;
        m_isFinished = isLast;
    } else if (!m_stop.isStopped()) {
        m_failure = failure;
    }
}

std::optional<TrackRun::Step> TrackRun::nextStep() {
    if (m_failure || m_isClosed || m_stop.isStopped()) {
        return std::nullopt;
    }
    if (m_isFinished) {
        return Step{[this, saved = m_next] { writeCompanions(m_orders, m_track, saved); }, {}};
    }
    if (m_next == m_end) {
        return Step{[this, frames = m_next - m_track.from] { finish(frames); }, {}};
    }
    const auto ready = m_ready.find(m_next);
    if (ready == m_ready.end()) {
        return std::nullopt;
    }
    return std::move(m_ready.extract(ready).mapped());
}

void TrackRun::finish(int frames) {
    if (m_orders.format.isOneFile() && frames < m_track.least) {
        throw FileError(m_orders.fileOf(m_track, m_track.from), TextKey("the file that stands there has more frames"));
    }
    m_sink->finish();
}

std::optional<FileError> TrackRun::failureOf(const FrameSink::Step& work, int index) const {
    try {
        work();
        return std::nullopt;
    } catch (const FileError& e) {
        return e;
    } catch (...) {
        return FileError(m_orders.fileOf(m_track, index), currentFailureText());
    }
}

void TrackRun::fail(const FileError& error) {
    const std::lock_guard lock(m_mutex);
    m_failure = error;
    m_next = m_track.from;
}

void TrackRun::keepOnly(const std::function<bool(const QString& name)>& stands) {
    const std::lock_guard lock(m_mutex);
    const bool isOne = m_orders.format.isOneFile();
    const int end = isOne ? m_track.from + (m_isFinished && m_next > m_track.from ? 1 : 0) : m_next;
    // Those that stood there before count as well.
    for (int index = isOne ? m_track.from : 0; index < end; ++index) {
        const QString file = m_orders.fileOf(m_track, index);
        if (!stands(QFileInfo(file).fileName())) {
            m_first = std::min(index, m_track.from);
            m_next = std::max(index, m_track.from);
            m_isFinished = false;
            m_failure = FileError(file, TextKey("the file has gone since it was written"));
            return;
        }
    }
    for (const QString& file : companionsOf(m_orders, m_track)) {
        if (m_isClosed && m_next > 0 && !stands(QFileInfo(file).fileName())) {
            m_failure = FileError(file, TextKey("the file has gone since it was written"));
        }
    }
}

bool TrackRun::hasFailed() const {
    const std::lock_guard lock(m_mutex);
    return m_failure.has_value();
}

int TrackRun::done() const {
    const std::lock_guard lock(m_mutex);
    return m_next - m_track.from;
}

/// A file for each frame is finished by the frame itself, though the save may be stopped before it is noted.
bool TrackRun::isComplete() const {
    const bool isAll = !m_orders.format.isOneFile() && m_next == m_end.value_or(m_track.frames());
    return m_isClosed || ((m_isFinished || isAll) && companionsOf(m_orders, m_track).isEmpty());
}

int TrackRun::saved() const {
    return m_orders.format.isOneFile() && !m_isFinished ? 0 : m_next - m_track.from;
}

SaveOutcome::End TrackRun::end() const {
    return m_failure                                      ? SaveOutcome::FileFailed
           : !isComplete()                                ? SaveOutcome::Cancelled
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
    own.frames = m_track.frames() - m_first;
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
