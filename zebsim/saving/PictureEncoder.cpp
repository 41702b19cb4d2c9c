#include "PictureEncoder.h"

#include <QBuffer>
#include <QImageWriter>

namespace {

QByteArray written(const QImage& picture, const char* format, int quality = -1) {
    QBuffer buffer;
    QImageWriter writer(&buffer, format);
    writer.setQuality(quality);
    return writer.write(picture) ? buffer.data() : QByteArray();
}

}  // namespace

QByteArray jpegOf(const QImage& picture, const FileMetadata& /*metadata*/, const PictureOptions& options) {
    return written(picture, "jpeg", options.jpegQuality);
}

QByteArray bmpOf(const QImage& picture, const FileMetadata& /*metadata*/, const PictureOptions& /*options*/) {
    return written(picture, "bmp");
}
