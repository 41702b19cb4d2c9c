// Reads each hostile file in a process of its own and prints what it took. Ends with 1 when one took more than a second
// or 64 MB, or did not hold what it should. With an argument it is that process and reads the file of that name.

#include "HostileFiles.h"
#include "UTL_Converter.h"

#include <QElapsedTimer>
#include <QFile>
#include <QTemporaryDir>

#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cstdio>
#include <stdexcept>

namespace {

constexpr int MegaByte = 1024 * 1024;
constexpr int MostMemory = 64 * MegaByte;
constexpr int MostMilliseconds = 1000;

enum Status { HoldsItems, HoldsNone, Other };

/// In bytes, with the libraries.
rlim_t addressSpace() {
    QFile file(QStringLiteral("/proc/self/statm"));
    return file.open(QIODevice::ReadOnly) ? rlim_t(file.readAll().split(' ')[0].toLongLong() * getpagesize()) : 0;
}

int readAlone(const QString& path) {
    const rlimit limit{addressSpace() + MostMemory, addressSpace() + MostMemory};
    setrlimit(RLIMIT_AS, &limit);
    QList<QVariantMap> items;
    try {
        UTL_Converter::xml2CustomInfo(path, items);
    } catch (const std::runtime_error&) {
        return HoldsNone;
    }
    return HoldsItems;
}

struct Cost {
    qint64 milliseconds;
    long kiloBytes;
    int status;
};

Cost costOf(const char* program, const QString& path) {
    QElapsedTimer passed;
    passed.start();
    const pid_t child = fork();
    if (child == 0) {
        std::freopen("/dev/null", "w", stderr);
        execl(program, program, path.toLocal8Bit().constData(), nullptr);
        _exit(Other);
    }
    int status = 0;
    rusage usage{};
    wait4(child, &status, 0, &usage);
    return {passed.elapsed(), usage.ru_maxrss, WIFEXITED(status) ? WEXITSTATUS(status) : int(Other)};
}

bool isWithinLimits(const char* program, const HostileFile& hostile, int size) {
    const QTemporaryDir folder;
    QFile file(folder.filePath(QStringLiteral("hostile.xml")));
    if (!file.open(QIODevice::WriteOnly) || file.write(bytesOf(hostile, size)) < 0) {
        std::printf("%s: %s\n", qPrintable(file.fileName()), qPrintable(file.errorString()));
        return false;
    }
    const qint64 bytes = file.size();
    file.close();
    const Cost cost = costOf(program, file.fileName());
    const int expected = hostile.holdsItems && bytes <= MegaByte ? HoldsItems : HoldsNone;
    const bool isGood =
        cost.status == expected && cost.milliseconds < MostMilliseconds && cost.kiloBytes * 1024 < MostMemory;
    std::printf("%-42s %9.1f KB %5lld ms %5.1f MB  %-5s %s\n", hostile.name, double(bytes) / 1024, cost.milliseconds,
                double(cost.kiloBytes) / 1024, cost.status == HoldsItems ? "items" : "none", isGood ? "" : "FAILED");
    std::fflush(stdout);
    return isGood;
}

}  // namespace

int main(int argc, char** argv) {
    if (argc > 1) {
        return readAlone(QString::fromLocal8Bit(argv[1]));
    }
    bool isGood = true;
    for (const HostileFile& file : hostileFiles()) {
        for (const int size : {MegaByte, 100 * MegaByte}) {
            if (size == MegaByte || (!file.piece.isEmpty() && file.most == 0)) {
                isGood = isWithinLimits(argv[0], file, size) && isGood;
            }
        }
    }
    return isGood ? 0 : 1;
}
