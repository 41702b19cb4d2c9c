// Saves images again and again in a program that is killed in the middle, 500 times, and looks at what stands there
// afterwards: whole files. What was to replace an old one may be left beside it, until the next save. Ends with 1
// otherwise.

#include "CameraBank.h"
#include "FaultPlan.h"
#include "FileWriter.h"
#include "RealClock.h"
#include "RecordedRig.h"
#include "SaveJob.h"

#include <QDir>
#include <QDirIterator>
#include <QEventLoop>
#include <QFile>
#include <QGuiApplication>
#include <QTemporaryDir>

#include <sys/wait.h>
#include <unistd.h>

#include <csignal>
#include <cstdio>
#include <random>

namespace {

constexpr int Kills = 500;
constexpr int Cameras = 4;
constexpr int Frames = 20;

/// What is saved, and whether over files of an earlier save.
struct Kind {
    const char* name;
    const char* format;
    bool isOver;
};
/// The last needs a program.
const Kind Kinds[] = {{"new", "png", false}, {"old", "png", true}, {"pages", "tiff", true}, {"videos", "mp4", true}};

/// Of one kind, in a folder of its own; new files go where there are none yet.
SaveOrders ordersOf(const CameraBank& cameras, const Kind& kind, const QString& folder, int round) {
    SaveOrders orders{saveFormat(QLatin1String(kind.format)), tracksOfEach(saveSources(cameras))};
    orders.format.options.isMultiPage = true;
    orders.encoder = VideoEncoder::installed();
    for (SaveTrack& track : orders.tracks) {
        const QString place = kind.isOver ? QString() : QString(QString::number(round) % QLatin1Char('/'));
        track.stem = folder % QLatin1Char('/') % QLatin1String(kind.name) % QLatin1Char('/') % place % track.name;
        for (int index = 0; kind.isOver && index < Frames; ++index) {
            orders.mayReplace.insert(orders.fileOf(track, index));
        }
    }
    return orders;
}

int kinds() {
    return VideoEncoder::installed().isUsable() ? 4 : 3;
}

[[noreturn]] void saveForEver(const QString& folder, int first, int begun) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    int argc = 0;
    QGuiApplication app(argc, nullptr);
    RealClock clock;
    FaultPlan faults;
    CameraBank cameras(clock, faults);
    cameras.replace(recordedRig(Cameras, QSize(256, 256), Frames, 0));
    for (int round = first;; ++round) {
        SaveJob job(cameras, ordersOf(cameras, Kinds[round % kinds()], folder, round));
        QEventLoop loop;
        QObject::connect(&job, &SaveJob::finished, &loop, &QEventLoop::quit);
        job.start();
        if (round == first && ::write(begun, "", 1) != 1) {
            _exit(1);
        }
        loop.exec();
        for (const SaveOutcome& outcome : job.outcomes()) {
            if (outcome.end != SaveOutcome::Saved) {
                std::fprintf(stderr, "%s: %s\n", qPrintable(outcome.file), qPrintable(outcome.reason));
                _exit(1);
            }
        }
    }
}

bool isWhole(const QString& path) {
    QFile file(path);
    file.open(QIODevice::ReadOnly);
    const QByteArray bytes = file.readAll();
    if (path.endsWith(QLatin1String(".png"))) {
        return bytes.right(8).startsWith("IEND") && !QImage::fromData(bytes).isNull();
    }
    if (path.endsWith(QLatin1String(".tif"))) {
        return bytes.count("{\"camera\"") == Frames;
    }
    return bytes.contains("moov");
}

struct Found {
    int whole = 0;
    int damaged = 0;
    int hidden = 0;
};

Found look(const QString& folder) {
    Found found;
    QDirIterator files(folder, QDir::Files | QDir::Hidden, QDirIterator::Subdirectories);
    while (files.hasNext()) {
        const QString path = files.next();
        const bool isHidden = files.fileName().startsWith(QLatin1Char('.'));
        ++(isHidden ? found.hidden : isWhole(path) ? found.whole : found.damaged);
    }
    return found;
}

/// Kills one program at a random moment of its saves.
bool killOne(const QString& folder, int first, unsigned int waitUs) {
    int begun[2];
    if (::pipe(begun) != 0) {
        return false;
    }
    const pid_t child = fork();
    if (child == 0) {
        saveForEver(folder, first, begun[1]);
    }
    ::close(begun[1]);
    char byte = 0;
    const bool hasBegun = ::read(begun[0], &byte, 1) == 1;
    ::close(begun[0]);
    usleep(waitUs);
    kill(child, SIGKILL);
    int status = 0;
    waitpid(child, &status, 0);
    return hasBegun && WIFSIGNALED(status);
}

}  // namespace

int main() {
    const QTemporaryDir folder;
    std::mt19937 random(1);
    Found all;
    bool isWell = true;
    for (int i = 0; i < Kills && isWell; ++i) {
        isWell = killOne(folder.path(), i % kinds(), random() % 200'000);
        const Found found = look(folder.path());
        all = {all.whole + found.whole, all.damaged + found.damaged, all.hidden + found.hidden};
        const QString fresh = folder.filePath(QLatin1String(Kinds[0].name));
        isWell = isWell && look(fresh).hidden == 0;
        QDir(fresh).removeRecursively();
        for (const Kind& kind : Kinds) {
            removeLeftOvers(folder.filePath(QLatin1String(kind.name)));
        }
        isWell = isWell && look(folder.path()).hidden == 0;
    }
    std::printf("pictures, killed %d times %20d whole, %d damaged, %d left until the next save\n", Kills, all.whole,
                all.damaged, all.hidden);
    return isWell && all.damaged == 0 && all.whole > 0 ? 0 : 1;
}
