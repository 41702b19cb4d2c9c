#pragma once

#include "FileError.h"
#include "FrameSink.h"
#include "SaveOrders.h"
#include "SaveOutcome.h"
#include "Semaphore.h"

#include <QSet>

#include <chrono>
#include <functional>
#include <map>
#include <mutex>
#include <optional>

class CameraBank;
class StopSource;

/// Room for a frame in memory: of those of its track, and of those of all.
struct FrameRoom {
    Semaphore::Permit ofTrack;
    Semaphore::Permit ofAll;
};

/// A track while it is saved. One thread reads its frames. They are made on any others, side by side, and written in
/// their order by whichever has made the next one.
class TrackRun {
public:
    /// `number` of it in `orders`, which must outlive it as `stop` must. At most `mostFrames` of it are in memory.
    TrackRun(int number, const SaveOrders& orders, int mostFrames, const StopSource& stop);

    const SaveTrack& track() const { return m_track; }
    QString folder() const;

    // For the one that reads.

    /// Has the cameras hand over frame `index`, side by side. False when none of them has it to give.
    bool read(const CameraBank& cameras, int index);
    /// Places in `sources` of those that are lost so far.
    const QSet<int>& lost() const { return m_lost; }
    /// Its one file begins to grow. It keeps `file`, if it got one, until all of it is written.
    void hold(Semaphore::Permit file);
    /// For frames of it in memory.
    Semaphore& frames() { return m_frames; }
    /// Frame `index` and those behind it do not come.
    void endAt(int index);

    // For any.

    /// Makes a frame that has been read, and writes what is next. `room` is free again when that frame is written.
    void make(int index, const QSet<int>& lost, FrameRoom room);
    /// Whether its one file grows, and a camera has handed over a frame lately.
    bool isAtWork() const;
    /// Nothing of it is saved.
    void fail(const FileError& error);
    /// Once nobody is at work: `stands` tells of a name whether it stands in its folder. What does not is not saved.
    void keepOnly(const std::function<bool(const QString& name)>& stands);
    bool hasFailed() const;
    /// Frames done so far.
    int done() const;
    /// Once nobody is at work: of the cameras that a layout has lost, and of the track.
    QList<SaveOutcome> outcomes() const;

private:
    struct Step {
        FrameSink::Step work;
        FrameRoom room;
    };

    void noteLost(int source, int index, const QString& reason);
    void writeReady(std::unique_lock<std::mutex>& lock);
    /// It has so many frames.
    void finish(int frames);
    std::optional<Step> nextStep();
    /// What has become of a step.
    void note(bool isLast, const std::optional<FileError>& failure);
    std::optional<FileError> failureOf(const FrameSink::Step& work, int index) const;
    bool isComplete() const;
    int saved() const;
    SaveOutcome::End end() const;

    const int m_number;
    const SaveOrders& m_orders;
    const SaveTrack& m_track;
    const StopSource& m_stop;
    const std::unique_ptr<FrameSink> m_sink;
    Semaphore m_frames;

    // The reader's; others look when it has ended.
    QSet<int> m_lost;
    QString m_lossReason;
    QList<SaveOutcome> m_lostFromLayout;

    mutable std::mutex m_mutex;
    /// The first frame that does not stand in a file of an earlier save.
    int m_first;
    /// The next frame to be written, and the first that does not come.
    int m_next;
    std::optional<int> m_end;
    /// What is made and waits for its turn, by frame.
    std::map<int, Step> m_ready;
    Semaphore::Permit m_file;
    bool m_isGrowing = false;
    std::chrono::steady_clock::time_point m_lastRead;
    bool m_isWriting = false;
    /// All frames stand in files, and then what stands beside them.
    bool m_isFinished = false;
    bool m_isClosed = false;
    std::optional<FileError> m_failure;
};
