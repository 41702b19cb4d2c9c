#include "WholeFile.h"

#include "TextKey.h"

#include <QSaveFile>

QString writeWholeFile(const QString& path, const QByteArray& bytes) {
    QSaveFile file(path);
    if (!file.open(QIODevice::WriteOnly)) {
        return file.errorString();
    }
    // On a full disk the bytes may still fit the buffer, and the commit says yes to an empty file.
    if (file.write(bytes) != bytes.size() || !file.flush()) {
        file.cancelWriting();
        return TextKey("only a part of it could be written; the disk may be full");
    }
    return file.commit() ? QString() : file.errorString();
}
