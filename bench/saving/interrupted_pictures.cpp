// Saves images again and again in a program that is killed in the middle, 500 times, a quarter of them in each way in
// which a file can come by its name, and looks at what stands there afterwards: whole files. What has no name yet may
// be left hidden, until the next save, and by the last of the ways an empty file. Ends with 1 otherwise.

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

#include <algorithm>
#include <csignal>
#include <cstdio>
#include <random>

namespace {

constexpr int Kills = 500;
constexpr int Cameras = 4;
constexpr int Frames = 20;
constexpr int Ways = 4;

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

void tellBegun(int begun) {
    if (::write(begun, "", 1) != 1) {
        _exit(1);
    }
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
        if (round == first) {
            tellBegun(begun);
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

QString folderOf(Naming way) {
    static const char* const names[Ways] = {"unnamed", "rename", "link", "claim"};
    return QLatin1String(names[int(way)]);
}

/// New files and old ones, in a way that is for poorer file systems.
[[noreturn]] void writeForEver(const QString& folder, Naming way, int begun) {
    QImage noise(QSize(256, 256), QImage::Format_RGB32);
    std::mt19937 random(1);
    std::generate_n(reinterpret_cast<QRgb*>(noise.bits()), noise.width() * noise.height(), [&] { return random(); });
    const QByteArray bytes = saveFormat(QStringLiteral("png")).encoded(noise, {});
    tellBegun(begun);
    for (int round = 0;; ++round) {
        writeFile(folder % QStringLiteral("/new%1.png").arg(round), bytes, Over::Nothing, way);
        writeFile(folder % QStringLiteral("/old%1.png").arg(round % Frames), bytes, Over::OldFile, way);
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
    int empty = 0;
    int hidden = 0;
};

/// A claim alone may be found empty.
Found look(const QString& folder, Naming way) {
    Found found;
    QDirIterator files(folder, QDir::Files | QDir::Hidden, QDirIterator::Subdirectories);
    while (files.hasNext()) {
        const QString path = files.next();
        const bool isClaim = way == Naming::Claim && files.fileInfo().size() == 0;
        ++(files.fileName().startsWith(QLatin1Char('.')) ? found.hidden
           : isClaim                                     ? found.empty
           : isWhole(path)                               ? found.whole
                                                         : found.damaged);
    }
    return found;
}

/// Kills one program at a random moment of its saves.
bool killOne(const QString& folder, Naming way, int first, unsigned int waitUs) {
    int begun[2];
    if (::pipe(begun) != 0) {
        return false;
    }
    const pid_t child = fork();
    if (child == 0 && way == Naming::Unnamed) {
        saveForEver(folder, first, begun[1]);
    } else if (child == 0) {
        writeForEver(folder, way, begun[1]);
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

/// As the next save does.
void removeAllLeftOvers(const QString& folder) {
    removeLeftOvers(folder);
    for (const Kind& kind : Kinds) {
        removeLeftOvers(folder % QLatin1Char('/') % QLatin1String(kind.name));
    }
}

/// New files of one kill, so that the next one makes them again.
void removeNew(const QString& folder) {
    QDir(folder % QLatin1Char('/') % QLatin1String(Kinds[0].name)).removeRecursively();
    for (const QString& name : QDir(folder).entryList({QStringLiteral("new*.png")})) {
        QFile::remove(folder % QLatin1Char('/') % name);
    }
}

}  // namespace

int main() {
    const QTemporaryDir top;
    std::mt19937 random(1);
    Found all[Ways];
    bool isWell = true;
    for (int i = 0; i < Kills && isWell; ++i) {
        const auto way = Naming(i % Ways);
        const QString folder = top.filePath(folderOf(way));
        QDir().mkpath(folder);
        isWell = killOne(folder, way, i / Ways % kinds(), random() % 200'000);
        const Found found = look(folder, way);
        Found& sum = all[int(way)];
        sum = {sum.whole + found.whole, sum.damaged + found.damaged, sum.empty + found.empty,
               sum.hidden + found.hidden};
        const QString fresh = folder % QLatin1Char('/') % QLatin1String(Kinds[0].name);
        isWell = isWell && found.damaged == 0 && look(fresh, way).hidden == 0;
        removeNew(folder);
        removeAllLeftOvers(folder);
        isWell = isWell && look(folder, way).hidden == 0;
    }
    std::printf("pictures, killed %d times\n", Kills);
    for (int way = 0; way < Ways; ++way) {
        const Found& found = all[way];
        std::printf("%10s %34d whole, %d damaged, %d empty, %d left until the next save\n",
                    qPrintable(folderOf(Naming(way))), found.whole, found.damaged, found.empty, found.hidden);
        isWell = isWell && found.whole > 0;
    }
    return isWell ? 0 : 1;
}
