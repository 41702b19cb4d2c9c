#include "WholePicture.h"

#include "WholeFile.h"

#include <QBuffer>
#include <QFileInfo>
#include <QImageWriter>

QString writeWholePicture(const QString& path, const QImage& picture) {
    QBuffer bytes;
    QImageWriter writer(&bytes, QFileInfo(path).suffix().toLatin1());
    return writer.write(picture) ? writeWholeFile(path, bytes.data()) : writer.errorString();
}
