#include "WholeFile.h"

#include "TextKey.h"

#include <QFileInfo>
#include <QSaveFile>
#include <QTemporaryFile>

#include <unistd.h>

#include <cerrno>
#include <cstdio>

namespace {

/// A name that is replaced gets six letters and a dot more for a moment.
constexpr int LongestNameOfSaveFile = 248;

QString diskFull() {
    return TextKey("only a part of it could be written; the disk may be full");
}

/// On a full disk bytes may still fit the buffer, and whoever asks no more takes the empty file for a good one.
bool put(QFileDevice& file, const QByteArray& bytes) {
    return file.write(bytes) == bytes.size() && file.flush();
}

/// Over the old bytes, which are put back when there is no room for all of the new ones.
QString writeInPlace(QFile& file, const QByteArray& bytes) {
    const qint64 before = file.size();
    const QByteArray old = file.read(bytes.size());
    file.seek(0);
    if (put(file, bytes) && file.resize(bytes.size()) && ::fdatasync(file.handle()) == 0) {
        return {};
    }
    file.seek(0);
    put(file, old);
    file.resize(before);
    return diskFull();
}

/// Does what `QSaveFile` does, with a short name for that moment.
QString replaceLongName(QFile& old, const QByteArray& bytes) {
    const QFileInfo there(old);
    QTemporaryFile file(there.canonicalPath() % QLatin1String("/XXXXXX"));
    if (!file.open()) {
        return writeInPlace(old, bytes);
    }
    if (!put(file, bytes)) {
        return diskFull();
    }
    ::fdatasync(file.handle());
    file.setPermissions(there.permissions());
    if (std::rename(QFile::encodeName(file.fileName()), QFile::encodeName(there.canonicalFilePath())) != 0) {
        return qt_error_string(errno);
    }
    file.setAutoRemove(false);
    return {};
}

/// One that is not there yet: nothing is lost if it is not written whole.
QString writeNewLongName(QFile& file, const QByteArray& bytes) {
    if (put(file, bytes) && ::fdatasync(file.handle()) == 0) {
        return {};
    }
    file.remove();
    return diskFull();
}

bool isLong(const QString& path) {
    return QFile::encodeName(QFileInfo(path).fileName()).size() > LongestNameOfSaveFile;
}

QString writeWhole(const QString& path, const QByteArray& bytes, bool& isOpened) {
    const QFileInfo there(path);
    QFile old(path);
    if (there.exists()) {
        QString reason = whyNoPlainFile(path);
        if (!reason.isEmpty() || !old.open(QIODevice::ReadWrite | QIODevice::ExistingOnly | QIODevice::Unbuffered)) {
            return reason.isEmpty() ? old.errorString() : reason;
        }
        if (isLong(there.canonicalFilePath())) {
            isOpened = true;
            return replaceLongName(old, bytes);
        }
    } else if (isLong(path)) {
        isOpened = old.open(QIODevice::WriteOnly | QIODevice::NewOnly | QIODevice::Unbuffered);
        return isOpened ? writeNewLongName(old, bytes) : old.errorString();
    }
    QSaveFile file(path);
    isOpened = file.open(QIODevice::WriteOnly) || old.isOpen();
    if (!file.isOpen()) {
        return old.isOpen() ? writeInPlace(old, bytes) : file.errorString();
    }
    if (!put(file, bytes)) {
        file.cancelWriting();
        return diskFull();
    }
    return file.commit() ? QString() : file.errorString();
}

}  // namespace

QString writeWholeFile(const QString& path, const QByteArray& bytes, bool* isOpened) {
    bool opened = false;
    const QString reason = writeWhole(path, bytes, opened);
    if (isOpened != nullptr) {
        *isOpened = opened;
    }
    return reason;
}

QString whyNoPlainFile(const QString& path) {
    const QFileInfo there(path);
    if (!there.exists() || there.isFile()) {
        return {};
    }
    return there.isDir() ? qt_error_string(EISDIR) : TextKey("it is not a regular file");
}

QString readPlainFile(const QString& path, qint64 most, QByteArray& out) {
    QString why = whyNoPlainFile(path);
    if (!why.isEmpty()) {
        return why;
    }
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        return file.errorString();
    }
    out = file.read(most);
    return file.error() == QFileDevice::NoError ? QString() : file.errorString();
}
