#include "TiffFile.h"

#include <QBuffer>
#include <QImage>

#include <algorithm>

#include <tiffio.h>

namespace {

constexpr int StripBytes = 4 << 20;

QBuffer& bufferOf(thandle_t handle) {
    return *static_cast<QBuffer*>(handle);
}

tmsize_t read(thandle_t handle, void* bytes, tmsize_t size) {
    return bufferOf(handle).read(static_cast<char*>(bytes), size);
}

tmsize_t write(thandle_t handle, void* bytes, tmsize_t size) {
    return bufferOf(handle).write(static_cast<const char*>(bytes), size);
}

toff_t seek(thandle_t handle, toff_t offset, int from) {
    QBuffer& buffer = bufferOf(handle);
    const qint64 start = from == SEEK_END ? buffer.size() : from == SEEK_CUR ? buffer.pos() : 0;
    buffer.seek(start + qint64(offset));
    return toff_t(buffer.pos());
}

toff_t size(thandle_t handle) {
    return toff_t(bufferOf(handle).size());
}

int close(thandle_t /*handle*/) {
    return 0;
}

void setTags(TIFF* file, const QImage& picture, const QByteArray& description) {
    TIFFSetField(file, TIFFTAG_IMAGEWIDTH, picture.width());
    TIFFSetField(file, TIFFTAG_IMAGELENGTH, picture.height());
    TIFFSetField(file, TIFFTAG_COMPRESSION, COMPRESSION_LZW);
    TIFFSetField(file, TIFFTAG_PHOTOMETRIC, PHOTOMETRIC_RGB);
    TIFFSetField(file, TIFFTAG_SAMPLESPERPIXEL, 3);
    TIFFSetField(file, TIFFTAG_BITSPERSAMPLE, 8);
    TIFFSetField(file, TIFFTAG_PLANARCONFIG, PLANARCONFIG_CONTIG);
    TIFFSetField(file, TIFFTAG_ORIENTATION, ORIENTATION_TOPLEFT);
    TIFFSetField(file, TIFFTAG_ROWSPERSTRIP, std::max(1, StripBytes / (3 * std::max(1, picture.width()))));
    TIFFSetField(file, TIFFTAG_RESOLUTIONUNIT, RESUNIT_INCH);
    TIFFSetField(file, TIFFTAG_XRESOLUTION, double(picture.logicalDpiX()));
    TIFFSetField(file, TIFFTAG_YRESOLUTION, double(picture.logicalDpiY()));
    if (!description.isEmpty()) {
        TIFFSetField(file, TIFFTAG_IMAGEDESCRIPTION, description.constData());
    }
}

bool writeRows(TIFF* file, QImage picture) {
    for (int y = 0; y < picture.height(); ++y) {
        if (TIFFWriteScanline(file, picture.scanLine(y), uint32_t(y), 0) != 1) {
            return false;
        }
    }
    return true;
}

}  // namespace

QByteArray tiffOf(const QImage& picture, const QByteArray& description) {
    QBuffer buffer;
    buffer.open(QIODevice::ReadWrite);
    TIFF* file = TIFFClientOpen("picture", "w", &buffer, read, write, seek, close, size, nullptr, nullptr);
    if (file == nullptr) {
        return {};
    }
    setTags(file, picture, description);
    const bool isWhole = writeRows(file, picture.convertToFormat(QImage::Format_RGB888)) && TIFFFlush(file) == 1;
    TIFFClose(file);
    return isWhole ? buffer.data() : QByteArray();
}
