#include "PictureReader.h"

#include "FileError.h"
#include "PixelRow.h"
#include "TextKey.h"
#include "WholeFile.h"

#include <QFile>
#include <QImageReader>

#include <memory>
#include <vector>

#include <tiffio.h>

namespace {

[[noreturn]] void refuseSize(const QString& path) {
    throw FileError(path, TextKey("the picture is not as large as the recording's"));
}

[[noreturn]] void refuseForm(const QString& path) {
    throw FileError(path, TextKey("it is no picture, or a damaged one"));
}

/// A pipe would be waited for.
void requireFile(const QString& path) {
    const QString why = whyNoPlainFile(path);
    QFile file(path);
    if (!why.isEmpty() || !file.open(QIODevice::ReadOnly)) {
        throw FileError(path, why.isEmpty() ? file.errorString() : why);
    }
}

int beSilent(TIFF* /*file*/, void* /*data*/, const char* /*module*/, const char* /*format*/, va_list /*list*/) {
    return 1;
}

using TiffHandle = std::unique_ptr<TIFF, decltype(&TIFFClose)>;

TiffHandle openTiff(const QString& path) {
    requireFile(path);
    TIFFOpenOptions* silent = TIFFOpenOptionsAlloc();
    TIFFOpenOptionsSetErrorHandlerExtR(silent, beSilent, nullptr);
    TIFFOpenOptionsSetWarningHandlerExtR(silent, beSilent, nullptr);
    TiffHandle file(TIFFOpenExt(QFile::encodeName(path).constData(), "r", silent), TIFFClose);
    TIFFOpenOptionsFree(silent);
    if (!file) {
        refuseForm(path);
    }
    return file;
}

template <typename T>
T tagOf(TIFF* file, ttag_t tag) {
    T value{};
    TIFFGetFieldDefaulted(file, tag, &value);
    return value;
}

/// Bits of a channel.
int depthOf(TIFF* file, const QString& path, const QSize& size) {
    if (tagOf<quint32>(file, TIFFTAG_IMAGEWIDTH) != quint32(size.width()) ||
        tagOf<quint32>(file, TIFFTAG_IMAGELENGTH) != quint32(size.height())) {
        refuseSize(path);
    }
    const int depth = tagOf<quint16>(file, TIFFTAG_BITSPERSAMPLE);
    if (TIFFIsTiled(file) != 0 || tagOf<quint16>(file, TIFFTAG_SAMPLESPERPIXEL) != Channels ||
        tagOf<quint16>(file, TIFFTAG_PHOTOMETRIC) != PHOTOMETRIC_RGB ||
        tagOf<quint16>(file, TIFFTAG_PLANARCONFIG) != PLANARCONFIG_CONTIG || (depth != 8 && depth != 16) ||
        TIFFScanlineSize(file) != rowBytes(size.width(), depth)) {
        refuseForm(path);
    }
    return depth;
}

QImage readRows(TIFF* file, const QString& path, const QSize& size) {
    const int depth = depthOf(file, path, size);
    QImage picture(size, depth == 16 ? QImage::Format_RGBX64 : QImage::Format_RGB32);
    // Room for two bytes a channel, whatever it has.
    std::vector<quint16> row(std::size_t(size.width()) * Channels);
    const auto* narrow = reinterpret_cast<const uchar*>(row.data());
    for (int y = 0; y < picture.height(); ++y) {
        if (TIFFReadScanline(file, row.data(), quint32(y), 0) != 1) {
            refuseForm(path);
        }
        for (int x = 0; x < size.width(); ++x) {
            const std::size_t i = std::size_t(x) * Channels;
            if (depth == 16) {
                reinterpret_cast<QRgba64*>(picture.scanLine(y))[x] = qRgba64(row[i], row[i + 1], row[i + 2], 0xffff);
            } else {
                reinterpret_cast<QRgb*>(picture.scanLine(y))[x] = qRgb(narrow[i], narrow[i + 1], narrow[i + 2]);
            }
        }
    }
    return picture;
}

}  // namespace

QImage readPicture(const QString& path, const QString& format, const QSize& size) {
    if (format == QLatin1String("tiff")) {
        return readRows(openTiff(path).get(), path, size);
    }
    requireFile(path);
    QImageReader reader(path, format.toLatin1());
    reader.setAutoDetectImageFormat(false);
    if (!reader.canRead()) {
        refuseForm(path);
    }
    if (reader.size() != size) {
        refuseSize(path);
    }
    const QImage picture = reader.read();
    if (picture.isNull()) {
        throw FileError(path, reader.errorString());
    }
    return plainPicture(picture);
}

QList<quint64> tiffPages(const QString& path, int most) {
    const TiffHandle file = openTiff(path);
    QList<quint64> pages;
    do {
        pages.append(TIFFCurrentDirOffset(file.get()));
    } while (pages.size() < most && TIFFReadDirectory(file.get()) == 1);
    return pages;
}

QImage readTiffPage(const QString& path, quint64 page, const QSize& size) {
    const TiffHandle file = openTiff(path);
    if (TIFFSetSubDirectory(file.get(), page) != 1) {
        refuseForm(path);
    }
    return readRows(file.get(), path, size);
}
