#include "WholeFile.h"

#include <QSaveFile>

QString writeWholeFile(const QString& path, const QByteArray& bytes) {
    QSaveFile file(path);
    // On a full disk the bytes may still fit the buffer, and the commit says yes to an empty file.
    const bool isOnDisk = file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size() && file.flush();
    if (!isOnDisk) {
        const QString reason = file.errorString();
        if (file.isOpen()) file.cancelWriting();
        return reason;
    }
    return file.commit() ? QString() : file.errorString();
}
