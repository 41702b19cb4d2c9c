#include "SavePipeline.h"

#include "FileWriter.h"
#include "ParallelRows.h"
#include "TextKey.h"
#include "Threads.h"

#include <QDir>
#include <QFile>
#include <QThread>

#include <sys/resource.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <map>
#include <system_error>

namespace {

/// Windows come before pictures.
constexpr int Niceness = 5;
/// Files that grow at a time, each of which can cost a program.
constexpr int MostGrowing = 8;
constexpr std::chrono::seconds LookAgain(1);

/// One may wait for a disk or an encoder that takes no more.
int workers() {
    return std::max(2, QThread::idealThreadCount());
}

int mostFrames() {
    return 2 * workers() + 2;
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
      m_framePermits(mostFrames()),
      m_filePermits(MostGrowing) {
    for (int number = 0; number < int(orders.tracks.size()); ++number) {
        m_runs.push_back(std::make_unique<TrackRun>(number, orders, mostFrames() / 2, m_stop));
        m_folders[m_runs.back()->folder()].push_back(m_runs.back().get());
    }
    makeGroups();
    try {
        m_thread = std::thread([this] { run(); });
    } catch (const std::system_error&) {
        failForWantOfThreads();
        m_whenOver();
    }
}

SavePipeline::~SavePipeline() {
    m_isDropped = true;
    stop();
    if (m_thread.joinable()) {
        m_thread.join();
    }
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
    m_framePermits.close();
    m_filePermits.close();
    for (const auto& run : m_runs) {
        run->frames().close();
    }
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
    readAndWrite();
    if (!m_isDropped) {
        sync();
        look();
    }
    m_whenOver();
}

void SavePipeline::readAndWrite() {
    auto writing = startThreads(std::size_t(workers()), [this] { makePictures(); });
    const std::size_t readers = writing.empty() ? 0 : std::min(m_groups.size(), std::size_t(ParallelRows::MostAtOnce));
    auto reading = startThreads(readers, [this] { readGroups(); });
    if (reading.empty()) {
        failForWantOfThreads();
    }
    join(reading);
    {
        const std::lock_guard lock(m_mutex);
        m_isAllRead = true;
        m_change.notify_all();
    }
    join(writing);
}

void SavePipeline::failForWantOfThreads() {
    for (const auto& run : m_runs) {
        run->fail(FileError(m_orders.fileOf(run->track(), run->track().from), qt_error_string(EAGAIN)));
    }
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

/// Once a file system.
void SavePipeline::sync() {
    std::map<dev_t, std::pair<QString, Runs>> fileSystems;
    for (const auto& [folder, runs] : m_folders) {
        struct stat there {};
        if (std::none_of(runs.begin(), runs.end(), [](TrackRun* run) { return run->done() > 0; })) {
            continue;
        }
        if (::stat(QFile::encodeName(folder).constData(), &there) != 0) {
            failAll(runs, FileError(folder, qt_error_string()));
            continue;
        }
        auto& [first, all] = fileSystems[there.st_dev];
        first = folder;
        all.insert(all.end(), runs.begin(), runs.end());
    }
    for (const auto& [device, written] : fileSystems) {
        try {
            syncDisk(written.first);
        } catch (const FileError& e) {
            failAll(written.second, e);
        }
    }
}

/// A medium may have gone, and a folder may have come in its place.
void SavePipeline::look() {
    for (const auto& [folder, runs] : m_folders) {
        const QDir target(folder);
        const QStringList list = target.entryList(QDir::Files | QDir::Hidden | QDir::System, QDir::NoSort);
        const QSet<QString> names(list.begin(), list.end());
        // One that may be written need not be one that can be listed.
        const bool isListed = target.isReadable();
        for (TrackRun* run : runs) {
            run->keepOnly([&](const QString& name) { return isListed ? names.contains(name) : target.exists(name); });
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
            run.hold(filePermit());
        }
        // Not before: whoever does not answer needs no room. The track's own first, for it may have no more for long.
        FrameRoom room{run.frames().acquire(), {}};
        room.ofAll = m_framePermits.acquire();
        if (!room.ofAll) {
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

/// Files whose cameras have fallen silent hold up no other one.
Semaphore::Permit SavePipeline::filePermit() {
    for (;;) {
        Semaphore::Permit permit = m_filePermits.acquireFor(LookAgain);
        const auto atWork =
            std::count_if(m_runs.begin(), m_runs.end(), [](const auto& run) { return run->isAtWork(); });
        if (permit || m_stop.isStopped() || atWork < MostGrowing) {
            return permit;
        }
    }
}

void SavePipeline::makePictures() {
    const StopSource::Carried carried(m_stop);
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
