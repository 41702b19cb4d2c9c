#include "SaveFormat.h"

#include <QBuffer>
#include <QImageWriter>

#include <algorithm>

namespace {

constexpr int JpegQuality = 95;
/// Between frames little changes.
constexpr int FramesInSizeOfOne = 4;

QByteArray written(const QImage& picture, const QByteArray& format) {
    QBuffer buffer;
    QImageWriter writer(&buffer, format);
    if (format == "jpeg") {
        writer.setQuality(JpegQuality);
    } else if (format == "tiff") {
        // Without loss.
        writer.setCompression(1);
    }
    return writer.write(picture) ? buffer.data() : QByteArray();
}

}  // namespace

bool SaveFormat::isPictureThatCanBeWritten() const {
    return QImageWriter::supportedImageFormats().contains(writer);
}

QByteArray SaveFormat::encoded(const QImage& picture) const {
    return written(picture, writer);
}

qint64 SaveFormat::expectedSize(const QImage& picture) const {
    return isVideo() ? written(picture, "jpeg").size() / FramesInSizeOfOne : encoded(picture).size();
}

const QList<SaveFormat>& saveFormats() {
    static const QList<SaveFormat> formats = {{QStringLiteral("png"), QStringLiteral("png"), "png"},
                                              {QStringLiteral("tiff"), QStringLiteral("tif"), "tiff"},
                                              {QStringLiteral("jpeg"), QStringLiteral("jpg"), "jpeg"},
                                              {QStringLiteral("video"), QStringLiteral("mp4"), {}}};
    return formats;
}

const SaveFormat& saveFormat(const QString& id) {
    const auto found = std::find_if(saveFormats().begin(), saveFormats().end(),
                                    [&](const SaveFormat& format) { return format.id == id; });
    return found == saveFormats().end() ? saveFormats().first() : *found;
}
