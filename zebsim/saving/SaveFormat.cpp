#include "SaveFormat.h"

#include <algorithm>
#include <utility>

QByteArray SaveFormat::encoded(QImage picture, const FileMetadata& metadata, int cameraBits) const {
    PictureOptions own = options;
    own.cameraBits = cameraBits;
    return encoder(std::move(picture), metadata, own);
}

qint64 SaveFormat::expectedSize(const QImage& picture, const FileMetadata& metadata, int cameraBits) const {
    if (!isVideo()) {
        return encoded(picture, metadata, cameraBits).size();
    }
    const auto sizeAs = [&](const char* kind) {
        return saveFormat(QLatin1String(kind)).encoded(picture, metadata).size();
    };
    return video.expectedSize(qint64(picture.width()) * picture.height(), sizeAs("png"), sizeAs("jpeg"));
}

const QList<SaveFormat>& saveFormats() {
    static const QList<SaveFormat> formats = {{QStringLiteral("png"), QStringLiteral("png"), pngOf},
                                              {QStringLiteral("tiff"), QStringLiteral("tif"), tiffOf, true},
                                              {QStringLiteral("jpeg"), QStringLiteral("jpg"), jpegOf},
                                              {QStringLiteral("bmp"), QStringLiteral("bmp"), bmpOf},
                                              {QStringLiteral("avi"), QStringLiteral("avi")},
                                              {QStringLiteral("mov"), QStringLiteral("mov")},
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
    SaveFormat format = saveFormat(pref(family % QStringLiteral("format")).toString());
    const auto option = [&](const char* suffix) {
        return pref(family % format.id % QLatin1Char('/') % QLatin1String(suffix));
    };
    PictureOptions& options = format.options;
    options.depth = option("depth").toInt() == 16 ? 16 : 8;
    options.isLower = option("lower").toBool();
    options.isSmall = option("priority").toString() == QLatin1String("size");
    options.isPackBits = option("packbits").toBool();
    options.isMultiPage = option("multipage").toBool();
    bool isNumber = false;
    const int quality = option("compressquality").toInt(&isNumber);
    options.jpegQuality = isNumber && quality >= 0 && quality <= 100 ? quality : options.jpegQuality;
    format.video = VideoOptions::chosen(pref, family, format.id);
    return format;
}
