#include "SaveFormat.h"

#include <QHash>

#include <algorithm>
#include <utility>

namespace {

/// Between frames little changes.
constexpr int FramesInSizeOfOne = 4;

}  // namespace

QByteArray SaveFormat::encoded(QImage picture, const FileMetadata& metadata) const {
    return encoder(std::move(picture), metadata, options);
}

qint64 SaveFormat::expectedSize(const QImage& picture, const FileMetadata& metadata) const {
    return isVideo() ? saveFormat(QStringLiteral("jpeg")).encoded(picture, metadata).size() / FramesInSizeOfOne
                     : encoded(picture, metadata).size();
}

const QList<SaveFormat>& saveFormats() {
    static const QList<SaveFormat> formats = {{QStringLiteral("png"), QStringLiteral("png"), pngOf},
                                              {QStringLiteral("tiff"), QStringLiteral("tif"), tiffOf, true},
                                              {QStringLiteral("jpeg"), QStringLiteral("jpg"), jpegOf},
                                              {QStringLiteral("bmp"), QStringLiteral("bmp"), bmpOf},
                                              {QStringLiteral("mp4"), QStringLiteral("mp4")}};
    return formats;
}

const SaveFormat& saveFormat(const QString& id) {
    const QString wanted = id == QLatin1String("video") ? QStringLiteral("mp4") : id;
    const auto found = std::find_if(saveFormats().begin(), saveFormats().end(),
                                    [&](const SaveFormat& format) { return format.id == wanted; });
    return found == saveFormats().end() ? saveFormats().first() : *found;
}

SaveFormat chosenFormat(const PrefReader& pref, const QString& family) {
    static const QHash<QString, TiffCompression> compressions = {{QStringLiteral("none"), TiffCompression::None},
                                                                 {QStringLiteral("deflate"), TiffCompression::Deflate}};
    SaveFormat format = saveFormat(pref(family % QStringLiteral("format")).toString());
    const auto option = [&](const char* suffix) {
        return pref(family % format.id % QLatin1Char('/') % QLatin1String(suffix));
    };
    PictureOptions& options = format.options;
    options.depth = option("depth").toInt() == 16 ? 16 : 8;
    options.isMultiPage = option("multipage").toBool();
    options.compression = option("packbits").toBool()
                              ? TiffCompression::PackBits
                              : compressions.value(option("compression").toString(), options.compression);
    const QVariant quality = option("compressquality");
    options.jpegQuality = quality.isValid() ? qBound(0, quality.toInt(), 100) : options.jpegQuality;
    return format;
}
