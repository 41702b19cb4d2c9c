#include "FileWriter.h"

#include "FileError.h"
#include "TextKey.h"
#include "WholeFile.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QRandomGenerator>

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <cstdio>

namespace {

const QString HiddenPrefix = QStringLiteral(".zebsim-");
constexpr mode_t AsUsual = 0666;

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
    throw FileError(m_path,
                    error == EEXIST ? TextKey("a file of that name has appeared meanwhile") : qt_error_string(error));
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
    struct stat file {};
    do {
        ::close(m_descriptor);
        m_hidden = hiddenPath();
        m_descriptor = ::open(m_hidden.constData(), O_CREAT | O_EXCL | O_RDWR | O_CLOEXEC, AsUsual);
        if (m_descriptor < 0 && errno != EEXIST) {
            fail(errno);
        }
        // Before it is locked, it can be taken for left over.
    } while (m_descriptor < 0 || ::flock(m_descriptor, LOCK_EX) != 0 || ::fstat(m_descriptor, &file) != 0 ||
             file.st_nlink == 0);
}

QByteArray FileWriter::hiddenPath() const {
    return m_folder + '/' + HiddenPrefix.toLatin1() + QByteArray::number(QRandomGenerator::global()->generate64(), 36);
}

QString FileWriter::growingPath() const {
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
    if (error != 0) {
        fail(error);
    }
}

int FileWriter::takeFreeName() {
    if (m_hidden.isEmpty()) {
        return linkUnnamed(m_descriptor, m_target);
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
    struct stat old {};
    if (::stat(m_target.constData(), &old) == 0) {
        ::fchmod(m_descriptor, old.st_mode & 07777);
    }
    if (m_hidden.isEmpty()) {
        const QByteArray hidden = hiddenPath();
        const int error = linkUnnamed(m_descriptor, hidden);
        if (error != 0) {
            return error;
        }
        m_hidden = hidden;
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
    const int error = file < 0 ? errno : errorOf(::syncfs(file));
    ::close(file);
    if (error != 0) {
        throw FileError(folder, qt_error_string(error));
    }
}

void removeLeftOvers(const QString& folder) {
    const QStringList names = QDir(folder).entryList({HiddenPrefix % QLatin1Char('*')}, QDir::Files | QDir::Hidden);
    for (const QString& name : names) {
        removeUnlocked(QFile::encodeName(folder % QLatin1Char('/') % name));
    }
}
