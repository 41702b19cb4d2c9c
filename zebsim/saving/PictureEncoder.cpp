#include "PictureEncoder.h"

#include <QBuffer>
#include <QImageWriter>

namespace {

QByteArray written(const QImage& picture, const char* format, int quality = -1) {
    QBuffer buffer;
    QImageWriter writer(&buffer, format);
    writer.setQuality(quality);
    return writer.write(picture.convertToFormat(QImage::Format_RGB32)) ? buffer.data() : QByteArray();
}

}  // namespace

QByteArray jpegOf(QImage&& picture, const FileMetadata& metadata, const PictureOptions& options) {
    // Of several texts most readers see the last one only.
    picture.setText(QStringLiteral("Description"), QString::fromLatin1(metadata.description));
    return written(picture, "jpeg", options.jpegQuality);
}

QByteArray bmpOf(QImage&& picture, const FileMetadata& /*metadata*/, const PictureOptions& /*options*/) {
    return written(picture, "bmp");
}
