#include "SavePipeline.h"

#include "FileWriter.h"
#include "ParallelRows.h"
#include "TextKey.h"

#include <QDir>
#include <QThread>

#include <sys/resource.h>
#include <unistd.h>

#include <algorithm>
#include <map>

namespace {

/// Windows come before pictures.
constexpr int Niceness = 5;
/// Of cameras that do not answer as many can be borne before others wait.
constexpr int MostGrowing = 8;

int cores() {
    return QThread::idealThreadCount();
}

std::vector<std::thread> threads(std::size_t count, const std::function<void()>& work) {
    std::vector<std::thread> threads;
    for (std::size_t i = 0; i < count; ++i) {
        threads.emplace_back(work);
    }
    return threads;
}

void join(std::vector<std::thread>& threads) {
    for (std::thread& thread : threads) {
        thread.join();
    }
}

void failAll(const std::vector<TrackRun*>& runs, const FileError& error) {
    for (TrackRun* run : runs) {
        run->fail(error);
    }
}

}  // namespace

SavePipeline::SavePipeline(const CameraBank& cameras, const SaveOrders& orders, std::function<void()> whenOver)
    : m_cameras(cameras),
      m_orders(orders),
      m_whenOver(std::move(whenOver)),
      m_frameRoom(2 * cores() + 2),
      m_fileRoom(std::max(MostGrowing, cores())) {
    for (int number = 0; number < int(orders.tracks.size()); ++number) {
        m_runs.push_back(std::make_unique<TrackRun>(number, orders, m_stop));
        m_folders[m_runs.back()->folder()].push_back(m_runs.back().get());
    }
    makeGroups();
    m_thread = std::thread([this] { run(); });
}

SavePipeline::~SavePipeline() {
    m_isDropped = true;
    stop();
    m_thread.join();
}

/// A camera hands over one frame at a time.
void SavePipeline::makeGroups() {
    std::map<DOCKEY, std::size_t> groups;
    for (const auto& run : m_runs) {
        const SaveTrack& track = run->track();
        std::size_t group = m_groups.size();
        if (!track.isLayout) {
            group = groups.try_emplace(track.sources.front().key(), group).first->second;
        }
        m_groups.resize(std::max(m_groups.size(), group + 1));
        m_groups[group].push_back(run.get());
    }
}

void SavePipeline::stop() {
    m_stop.stop();
    m_frameRoom.close();
    m_fileRoom.close();
}

std::vector<int> SavePipeline::done() const {
    std::vector<int> done;
    for (const auto& run : m_runs) {
        done.push_back(run->done());
    }
    return done;
}

QList<SaveOutcome> SavePipeline::outcomes() const {
    QList<SaveOutcome> outcomes;
    for (const auto& run : m_runs) {
        outcomes += run->outcomes();
    }
    return outcomes;
}

void SavePipeline::run() {
    makeFolders();
    auto workers = threads(std::size_t(cores()), [this] { work(); });
    auto readers = threads(std::min(m_groups.size(), std::size_t(ParallelRows::MostAtOnce)), [this] { readGroups(); });
    join(readers);
    {
        const std::lock_guard lock(m_mutex);
        m_isAllRead = true;
        m_change.notify_all();
    }
    join(workers);
    if (!m_isDropped) {
        sync();
    }
    m_whenOver();
}

void SavePipeline::makeFolders() {
    for (const auto& [folder, runs] : m_folders) {
        if (QDir().mkpath(folder)) {
            removeLeftOvers(folder);
        } else {
            failAll(runs, FileError(folder, TextKey("there can't be such a folder")));
        }
    }
}

void SavePipeline::sync() {
    for (const auto& [folder, runs] : m_folders) {
        const bool isWritten = std::any_of(runs.begin(), runs.end(), [](TrackRun* run) { return run->done() > 0; });
        try {
            if (isWritten) {
                syncDisk(folder);
            }
        } catch (const FileError& e) {
            failAll(runs, e);
        }
    }
}

void SavePipeline::readGroups() {
    const StopSource::Carried carried(m_stop);
    for (std::size_t group = m_nextGroup++; group < m_groups.size(); group = m_nextGroup++) {
        for (TrackRun* run : m_groups[group]) {
            readTrack(*run);
        }
    }
}

void SavePipeline::readTrack(TrackRun& run) {
    const SaveTrack& track = run.track();
    int index = track.from;
    for (; index < track.frames() && !run.hasFailed() && run.read(m_cameras, index); ++index) {
        if (index == track.from && m_orders.format.isOneFile()) {
            run.hold(m_fileRoom.take());
        }
        // Not before: whoever does not answer needs no room.
        Places::Taken room = m_frameRoom.take();
        if (!room) {
            return;
        }
        const std::lock_guard lock(m_mutex);
        m_frames.push_back({&run, index, run.lost(), std::move(room)});
        m_change.notify_one();
    }
    if (!m_stop.isStopped()) {
        run.endAt(index);
    }
}

void SavePipeline::work() {
    ::setpriority(PRIO_PROCESS, id_t(::gettid()), Niceness);
    while (auto frame = nextFrame()) {
        frame->run->make(frame->index, frame->lost, std::move(frame->room));
    }
}

std::optional<SavePipeline::Frame> SavePipeline::nextFrame() {
    std::unique_lock lock(m_mutex);
    m_change.wait(lock, [this] { return !m_frames.empty() || m_isAllRead; });
    if (m_frames.empty() || m_stop.isStopped()) {
        return std::nullopt;
    }
    Frame frame = std::move(m_frames.front());
    m_frames.pop_front();
    return frame;
}
