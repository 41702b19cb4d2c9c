#include "FileWriter.h"

#include "FileError.h"
#include "TextKey.h"
#include "WholeFile.h"

#include <QCryptographicHash>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QRandomGenerator>
#include <QSysInfo>

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <cstdio>
#include <utility>

namespace {

constexpr mode_t AsUsual = 0666;
constexpr int BytesAtOnce = 1 << 20;
/// Of a number of 64 bits to the base of 36.
constexpr int MostDigits = 13;

/// The machine stands in it, for no other one may see the locks.
QByteArray hiddenName(const QByteArray& number) {
    static const QByteArray host = QCryptographicHash::hash(
        QSysInfo::machineUniqueId() + QSysInfo::machineHostName().toUtf8(), QCryptographicHash::Sha1);
    return ".zebsim-" + host.left(4).toHex() + '-' + number + ".part";
}

QByteArray newHiddenName() {
    const QByteArray number = QByteArray::number(QRandomGenerator::global()->generate64(), 36);
    return hiddenName(number.rightJustified(MostDigits, '0'));
}

/// What stands at the end of a chain of links, there or not.
QString followed(const QString& path) {
    constexpr int MostLinks = 40;
    QFileInfo file(path);
    for (int i = 0; i < MostLinks && file.isSymLink(); ++i) {
        file.setFile(file.symLinkTarget());
    }
    return file.filePath();
}

int errorOf(int answer) {
    return answer == 0 ? 0 : errno;
}

/// The system, or the file system, has no such way.
bool isMissing(int error) {
    return error == EOPNOTSUPP || error == EINVAL || error == ENOSYS || error == EPERM || error == EISDIR;
}

// Ways to a name that must be free, by their error.

int linkUnnamed(int descriptor, const QByteArray& path) {
    const QByteArray open = "/proc/self/fd/" + QByteArray::number(descriptor);
    return errorOf(::linkat(AT_FDCWD, open.constData(), AT_FDCWD, path.constData(), AT_SYMLINK_FOLLOW));
}

int renameToFree(const QByteArray& from, const QByteArray& to) {
    return errorOf(::renameat2(AT_FDCWD, from.constData(), AT_FDCWD, to.constData(), RENAME_NOREPLACE));
}

int linkToFree(const QByteArray& from, const QByteArray& to) {
    const int error = errorOf(::link(from.constData(), to.constData()));
    return error == 0 ? errorOf(::unlink(from.constData())) : error;
}

int renameToClaimed(const QByteArray& from, const QByteArray& to) {
    const int claim = ::open(to.constData(), O_CREAT | O_EXCL | O_WRONLY | O_CLOEXEC, AsUsual);
    if (claim < 0) {
        return errno;
    }
    ::close(claim);
    const int error = errorOf(std::rename(from.constData(), to.constData()));
    if (error != 0) {
        ::unlink(to.constData());
    }
    return error;
}

/// False when it was taken for left over before it was locked. Some file systems have no locks; there none is removed.
bool lockOwn(int file) {
    struct stat own {};
    return ::flock(file, LOCK_EX) != 0 || ::fstat(file, &own) != 0 || own.st_nlink > 0;
}

/// Whoever writes a hidden file holds its lock.
void removeUnlocked(const QByteArray& path) {
    const int file = ::open(path.constData(), O_RDONLY | O_CLOEXEC | O_NOFOLLOW | O_NONBLOCK);
    if (file >= 0 && ::flock(file, LOCK_EX | LOCK_NB) == 0) {
        ::unlink(path.constData());
    }
    ::close(file);
}

}  // namespace

FileWriter::FileWriter(QString path, Over over, Naming naming)
    : m_path(std::move(path)), m_over(over), m_naming(naming) {
    const QString target = over == Over::OldFile ? followed(m_path) : m_path;
    const QString reason = over == Over::OldFile ? whyNoPlainFile(target) : QString();
    if (!reason.isEmpty()) {
        throw FileError(m_path, reason);
    }
    m_target = QFile::encodeName(target);
    m_folder = QFile::encodeName(QFileInfo(target).path());
    if (!openUnnamed()) {
        openHidden();
    }
}

FileWriter::~FileWriter() {
    if (!m_hidden.isEmpty()) {
        ::unlink(m_hidden.constData());
    }
    ::close(m_descriptor);
}

void FileWriter::fail(int error) const {
    throw FileError(m_path, error == EEXIST ? TextKey("a file of that name is there already") : qt_error_string(error));
}

bool FileWriter::openUnnamed() {
    // By way of /proc it gets its name.
    if (m_naming != Naming::Unnamed || ::access("/proc/self/fd", X_OK) != 0) {
        return false;
    }
    m_descriptor = ::open(m_folder.constData(), O_TMPFILE | O_RDWR | O_CLOEXEC, AsUsual);
    if (m_descriptor < 0 && !isMissing(errno)) {
        fail(errno);
    }
    if (m_descriptor >= 0) {
        ::flock(m_descriptor, LOCK_EX);
    }
    return m_descriptor >= 0;
}

void FileWriter::openHidden() {
    do {
        ::close(m_descriptor);
        m_hidden = m_folder + '/' + newHiddenName();
        m_descriptor = ::open(m_hidden.constData(), O_CREAT | O_EXCL | O_RDWR | O_CLOEXEC, AsUsual);
        if (m_descriptor < 0 && errno != EEXIST) {
            fail(errno);
        }
    } while (m_descriptor < 0 || !lockOwn(m_descriptor));
}

void FileWriter::copyToHidden() {
    QFile unnamed;
    unnamed.open(std::exchange(m_descriptor, -1), QIODevice::ReadOnly, QFileDevice::AutoCloseHandle);
    unnamed.seek(0);
    openHidden();
    for (QByteArray bytes = unnamed.read(BytesAtOnce); !bytes.isEmpty(); bytes = unnamed.read(BytesAtOnce)) {
        write(bytes);
    }
    if (unnamed.error() != QFileDevice::NoError) {
        throw FileError(m_path, unnamed.errorString());
    }
}

QString FileWriter::temporaryPath() const {
    return m_hidden.isEmpty() ? QStringLiteral("/proc/%1/fd/%2").arg(::getpid()).arg(m_descriptor)
                              : QFile::decodeName(m_hidden);
}

void FileWriter::write(const QByteArray& bytes) {
    for (qint64 done = 0; done < bytes.size();) {
        const ssize_t written = ::write(m_descriptor, bytes.constData() + done, std::size_t(bytes.size() - done));
        if (written < 0 && errno != EINTR) {
            fail(errno);
        }
        done += std::max<ssize_t>(0, written);
    }
}

void FileWriter::complete() {
    // Some file systems tell only then that they had no room.
    if (::close(::dup(m_descriptor)) != 0) {
        fail(errno);
    }
    int error = takeFreeName();
    if (error == EEXIST && m_over == Over::OldFile) {
        error = replaceOld();
    }
    // The folder that is synchronised in the end may lie on another disk.
    if (error == 0 && m_target != QFile::encodeName(m_path)) {
        error = errorOf(::fsync(m_descriptor));
    }
    if (error != 0) {
        fail(error);
    }
}

int FileWriter::takeFreeName() {
    if (m_hidden.isEmpty()) {
        const int error = linkUnnamed(m_descriptor, m_target);
        if (!isMissing(error)) {
            return error;
        }
        copyToHidden();
    }
    int error = ENOSYS;
    for (auto naming = std::max(m_naming, Naming::Rename); naming <= Naming::Claim && isMissing(error);
         naming = Naming(int(naming) + 1)) {
        error = naming == Naming::Rename ? renameToFree(m_hidden, m_target)
                : naming == Naming::Link ? linkToFree(m_hidden, m_target)
                                         : renameToClaimed(m_hidden, m_target);
    }
    if (error == 0) {
        m_hidden.clear();
    }
    return error;
}

int FileWriter::replaceOld() {
    if (m_hidden.isEmpty()) {
        const QByteArray hidden = m_folder + '/' + newHiddenName();
        const int error = linkUnnamed(m_descriptor, hidden);
        if (isMissing(error)) {
            copyToHidden();
        } else if (error != 0) {
            return error;
        } else {
            m_hidden = hidden;
        }
    }
    struct stat old {};
    if (::stat(m_target.constData(), &old) == 0) {
        ::fchmod(m_descriptor, old.st_mode & 07777);
    }
    const int error = errorOf(std::rename(m_hidden.constData(), m_target.constData()));
    if (error == 0) {
        m_hidden.clear();
    }
    return error;
}

void writeFile(const QString& path, const QByteArray& bytes, Over over, Naming naming) {
    FileWriter file(path, over, naming);
    file.write(bytes);
    file.complete();
}

void syncDisk(const QString& folder) {
    const int file = ::open(QFile::encodeName(folder).constData(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    if (file < 0 && errno == EACCES) {
        // It may be written, but not looked into.
        ::sync();
        return;
    }
    const int error = file < 0 ? errno : errorOf(::syncfs(file));
    ::close(file);
    if (error != 0) {
        throw FileError(folder, qt_error_string(error));
    }
}

void removeLeftOvers(const QString& folder) {
    const QString form = QString::fromLatin1(hiddenName(QByteArray(MostDigits, '?')));
    for (const QString& name : QDir(folder).entryList({form}, QDir::Files | QDir::Hidden | QDir::CaseSensitive)) {
        removeUnlocked(QFile::encodeName(folder % QLatin1Char('/') % name));
    }
}
