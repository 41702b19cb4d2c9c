#pragma once

#include "Semaphore.h"
#include "StopSource.h"
#include "TrackRun.h"

#include <atomic>
#include <condition_variable>
#include <deque>
#include <functional>
#include <map>
#include <memory>
#include <mutex>
#include <optional>
#include <thread>
#include <vector>

/// The threads of a save. Readers wait for cameras: each has one camera, or one layout, at a time, so that a slow one
/// holds up itself alone. Workers make pictures of what was read and write them, on all cores. A track whose file takes
/// no more holds half of the room for frames at most, and one worker.
class SavePipeline {
public:
    /// Begins. `whenOver` is called when all has ended, on a thread of its own; at once when none can be made, and then
    /// no track is saved. All must outlive it.
    SavePipeline(const CameraBank& cameras, const SaveOrders& orders, std::function<void()> whenOver);
    /// Stops within a frame.
    ~SavePipeline();
    SavePipeline(const SavePipeline&) = delete;
    SavePipeline& operator=(const SavePipeline&) = delete;

    /// All ends within a frame.
    void stop();
    /// Of each track the frames done so far.
    std::vector<int> done() const;
    /// Once it is over.
    QList<SaveOutcome> outcomes() const;

private:
    using Runs = std::vector<TrackRun*>;
    struct Frame {
        TrackRun* run;
        int index;
        QSet<int> lost;
        FrameRoom room;
    };

    void makeGroups();
    void run();
    void makeFolders();
    void readAndWrite();
    void failForWantOfThreads();
    void sync();
    void look();
    Semaphore::Permit filePermit();
    void readGroups();
    void readTrack(TrackRun& run);
    void makePictures();
    std::optional<Frame> nextFrame();

    const CameraBank& m_cameras;
    const SaveOrders& m_orders;
    const std::function<void()> m_whenOver;
    StopSource m_stop;
    /// For frames in memory, and for files that grow.
    Semaphore m_framePermits;
    Semaphore m_filePermits;
    std::vector<std::unique_ptr<TrackRun>> m_runs;
    std::map<QString, Runs> m_folders;
    /// Those of a group are read one after the other.
    std::vector<Runs> m_groups;
    std::atomic<std::size_t> m_nextGroup{0};

    std::mutex m_mutex;
    std::condition_variable m_change;
    std::deque<Frame> m_frames;
    bool m_isAllRead = false;

    /// Nobody waits for the disk.
    std::atomic<bool> m_isDropped{false};
    std::thread m_thread;
};
