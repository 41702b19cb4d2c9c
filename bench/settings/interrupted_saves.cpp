// Saves camera settings again and again in a program that is killed in the middle, 500 times, and looks at what stands
// there afterwards: a whole file. Ends with 1 otherwise.

#include "CameraState.h"
#include "JsonError.h"
#include "SettingsReader.h"
#include "SettingsWriter.h"
#include "WholeFile.h"

#include <QTemporaryDir>

#include <sys/wait.h>
#include <unistd.h>

#include <csignal>
#include <cstdio>
#include <random>

namespace {

constexpr int Kills = 500;
constexpr int Cameras = 64;

/// Of up to that many cameras, each with the same settings.
QByteArray textOf(int cameras) {
    CameraState state;
    state.rate = 1000;
    state.shutter = 1000;
    state.resolution = QSize(1024, 1024);
    QList<HeadSettings> heads;
    for (int camera = 1; camera <= cameras; ++camera) {
        heads.append({QStringLiteral("10.0.0.%1").arg(camera), 1, state.toPlain(CameraState::settings())});
    }
    return writeSettings(heads);
}

bool isWhole(const QString& path) {
    try {
        return !readSettings(path).isEmpty();
    } catch (const JsonError& error) {
        std::printf("%s\n", error.what());
        return false;
    }
}

[[noreturn]] void saveForEver(const QString& path) {
    const QByteArray texts[] = {textOf(Cameras), textOf(1)};
    for (int n = 0;; ++n) {
        if (!writeWholeFile(path, texts[n % 2]).isEmpty()) {
            _exit(1);
        }
    }
}

}  // namespace

int main() {
    const QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("settings.rigx"));
    int damaged = writeWholeFile(path, textOf(1)).isEmpty() ? 0 : 1;
    std::mt19937 random(1);
    for (int i = 0; i < Kills; ++i) {
        const pid_t child = fork();
        if (child == 0) {
            saveForEver(path);
        }
        usleep(10'000 + random() % 20'000);
        int status = 0;
        kill(child, SIGKILL);
        waitpid(child, &status, 0);
        damaged += isWhole(path) && WIFSIGNALED(status) ? 0 : 1;
    }
    std::printf("settings, killed %d times %20d damaged\n", Kills, damaged);
    return damaged == 0 ? 0 : 1;
}
