// Writes custom information where that is cut short, by the end of the program or by the end of the disk, and looks at
// what stands there afterwards: the old list or the new one, whole, and no success that was none. Ends with 1
// otherwise. Some small disks are mounted for it, where the user may do that.

#include "UTL_Converter.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <sys/mount.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <csignal>
#include <cstdio>
#include <functional>
#include <random>
#include <stdexcept>
#include <utility>

namespace {

constexpr int Kills = 500;
constexpr int KiloByte = 1024;
constexpr int MostKiloBytes = 40;
/// Of the files that are written, in letters of one value.
constexpr int Small = 2'000;
constexpr int Large = 15'000;
constexpr uid_t Nobody = 65534;

/// A list that tells by itself whether it is whole: `count` items, each with the same value.
QList<QVariantMap> listOf(int count, int letters) {
    const QVariantMap item{{QStringLiteral("name"), QString::number(count)},
                           {QStringLiteral("value"), QString(letters, QLatin1Char('x'))}};
    QList<QVariantMap> list;
    for (int i = 0; i < count; ++i) {
        list.append(item);
    }
    return list;
}

/// How many items the file holds; 0 when it is none of the lists.
int itemsOf(const QString& path) {
    QList<QVariantMap> items;
    try {
        UTL_Converter::xml2CustomInfo(path, items);
    } catch (const std::runtime_error&) {
        return 0;
    }
    const bool isWhole =
        items.first().value(QStringLiteral("name")).toInt() == items.size() && items.first() == items.last();
    return isWhole ? items.size() : 0;
}

bool isWritten(const QString& path, const QList<QVariantMap>& list) {
    try {
        UTL_Converter::customInfo2xml(list, path, QStringLiteral("1.0"));
        return true;
    } catch (const std::runtime_error&) {
        return false;
    }
}

/// What `work` answers in a process of its own.
int apart(const std::function<int()>& work) {
    const pid_t child = fork();
    if (child == 0) {
        _exit(work());
    }
    int status = 0;
    waitpid(child, &status, 0);
    return WIFEXITED(status) ? WEXITSTATUS(status) : -1;
}

/// Damaged files after that many ends of a program that writes all the time.
int damagedByKills(const QString& path, const QString& named) {
    std::mt19937 random(1);
    int damaged = 0;
    for (int i = 0; i < Kills; ++i) {
        const pid_t child = fork();
        if (child == 0) {
            for (int n = 0;; ++n) {
                isWritten(named, listOf(1 + n % 20, Large));
            }
        }
        usleep(2'000 + random() % 20'000);
        kill(child, SIGKILL);
        waitpid(child, nullptr, 0);
        damaged += itemsOf(path) == 0 ? 1 : 0;
    }
    return damaged;
}

struct Outcomes {
    int written = 0;
    int refused = 0;
    /// Nothing whole stood there, or not what the answer had said.
    int wrong = 0;
};

/// Writes a list over another one on a disk that has no room for more.
void overwrite(const QString& path, const QList<QVariantMap>& old, const QList<QVariantMap>& list,
               const std::function<void()>& fill, Outcomes& outcomes) {
    QFile::remove(path);
    if (!isWritten(path, old)) {
        return;  // no room for the old one
    }
    chmod(QFile::encodeName(path).constData(), 0666);
    const bool written = apart([&] {
                             fill();
                             // root would find no folder closed
                             const bool isUser = geteuid() != 0 || setresuid(Nobody, Nobody, Nobody) == 0;
                             return isUser && isWritten(path, list) ? 1 : 0;
                         }) == 1;
    ++(written ? outcomes.written : outcomes.refused);
    outcomes.wrong += itemsOf(path) == (written ? list.size() : old.size()) ? 0 : 1;
}

void limitFiles(int bytes) {
    std::signal(SIGXFSZ, SIG_IGN);
    const rlimit limit{rlim_t(bytes), rlim_t(bytes)};
    setrlimit(RLIMIT_FSIZE, &limit);
}

/// In a folder of its own, where `fill` leaves room for so many bytes; as a user who may write into the folder or not.
bool isGoodOnFullDisks(const char* what, const QString& folder, const std::function<void(int)>& fill, int mode) {
    const QList<QVariantMap> lists[] = {listOf(1, Small), listOf(2, Large), listOf(3, Large)};
    Outcomes outcomes;
    for (int kiloBytes = 0; kiloBytes <= MostKiloBytes; ++kiloBytes) {
        for (const auto& [from, to] : {std::pair{0, 1}, {0, 2}, {1, 0}, {1, 2}, {2, 0}, {2, 1}}) {
            const auto prepare = [&] {
                chmod(QFile::encodeName(folder).constData(), mode_t(mode));
                fill(kiloBytes * KiloByte);
            };
            overwrite(folder + QStringLiteral("/list.xml"), lists[from], lists[to], prepare, outcomes);
            chmod(QFile::encodeName(folder).constData(), 0777);
            QFile::remove(folder + QStringLiteral("/filling"));
        }
    }
    std::printf("%-40s %d written, %d refused, %d wrong\n", what, outcomes.written, outcomes.refused, outcomes.wrong);
    std::fflush(stdout);
    return outcomes.wrong == 0 && outcomes.written > 0 && outcomes.refused > 0;
}

/// Leaves that many bytes on a disk of a size of its own.
void leaveRoom(const QString& folder, int bytes) {
    QFile filling(folder + QStringLiteral("/filling"));
    if (filling.open(QIODevice::WriteOnly | QIODevice::Unbuffered)) {
        while (filling.write(QByteArray(KiloByte, 'x')) == KiloByte) {
        }
        filling.resize(std::max<qint64>(0, filling.size() - bytes));
    }
}

bool isGoodWhenKilled(const char* what, const QString& path, const QString& named) {
    isWritten(path, listOf(1, Large));
    const int damaged = damagedByKills(path, named);
    std::printf("%-40s %d damaged\n", what, damaged);
    std::fflush(stdout);
    return damaged == 0;
}

bool isGoodOnDisk(const QString& folder) {
    const auto fill = [&folder](int bytes) { leaveRoom(folder, bytes); };
    const bool isGood = isGoodOnFullDisks("a disk with room for 0 to 40 KB", folder, fill, 0777);
    return isGoodOnFullDisks("the same in a closed folder", folder, fill, 0555) && isGood;
}

}  // namespace

int main() {
    qInstallMessageHandler([](QtMsgType, const QMessageLogContext&, const QString&) {});
    const QTemporaryDir folder;
    chmod(QFile::encodeName(folder.path()).constData(), 0777);
    const QString plain = folder.filePath(QStringLiteral("list"));
    const QString longest = folder.filePath(QString(255, QLatin1Char('n')));
    const QString link = folder.filePath(QStringLiteral("link"));
    QFile::link(plain, link);
    bool isGood = isGoodWhenKilled("killed 500 times", plain, plain);
    isGood = isGoodWhenKilled("the same with the longest name", longest, longest) && isGood;
    isGood = isGoodWhenKilled("the same by a link", plain, link) && isGood;

    const QString disk = folder.filePath(QStringLiteral("disk"));
    QDir().mkdir(disk);
    isGood = isGoodOnFullDisks("no file beyond 0 to 40 KB", disk, limitFiles, 0777) && isGood;
    isGood = isGoodOnFullDisks("the same in a closed folder", disk, limitFiles, 0555) && isGood;
    if (mount("tmpfs", QFile::encodeName(disk).constData(), "tmpfs", 0, "size=256k,mode=0777") != 0) {
        std::printf("no small disk could be mounted\n");
        return isGood ? 0 : 1;
    }
    isGood = isGoodOnDisk(disk) && isGood;
    umount(QFile::encodeName(disk).constData());
    return isGood ? 0 : 1;
}
