#include "SaveFormat.h"

#include "TiffFile.h"

#include <QBuffer>
#include <QImageWriter>

#include <algorithm>

namespace {

constexpr int JpegQuality = 95;
/// Between frames little changes.
constexpr int FramesInSizeOfOne = 4;

/// The texts that the picture itself has are part of the file.
QByteArray written(const QImage& picture, const QByteArray& format) {
    QBuffer buffer;
    QImageWriter writer(&buffer, format);
    if (format == "jpeg") {
        writer.setQuality(JpegQuality);
    }
    return writer.write(picture) ? buffer.data() : QByteArray();
}

}  // namespace

QByteArray SaveFormat::encoded(QImage picture, const FileMetadata& metadata) const {
    if (writer == "tiff") {
        return tiffOf(picture, metadata.description);
    }
    picture.setText(QStringLiteral("Description"), QString::fromLatin1(metadata.description));
    // Of several texts in a JPEG file most readers see the last one only.
    if (writer == "png") {
        for (const auto& [name, value] : metadata.tags) {
            picture.setText(name, value);
        }
    }
    return written(picture, writer);
}

qint64 SaveFormat::expectedSize(const QImage& picture, const FileMetadata& metadata) const {
    return isVideo() ? written(picture, "jpeg").size() / FramesInSizeOfOne : encoded(picture, metadata).size();
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
