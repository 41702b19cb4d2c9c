#include "TiffFile.h"

#include "PictureEncoder.h"
#include "PixelRow.h"

#include <QBuffer>
#include <QImage>

#include <algorithm>
#include <vector>

#include <tiffio.h>

namespace {

constexpr int StripBytes = 4 << 20;

}  // namespace

/// What the library calls.
struct TiffFile::Access {
    static QIODevice& device(thandle_t file) { return static_cast<TiffFile*>(file)->m_device; }
    static tmsize_t read(thandle_t file, void* bytes, tmsize_t size) {
        return device(file).read(static_cast<char*>(bytes), size);
    }
    static tmsize_t write(thandle_t file, void* bytes, tmsize_t size) {
        qint64 written = 0;
        qint64 more = 0;
        // A disk that is full takes a part, and only what comes after it is told why.
        do {
            more = device(file).write(static_cast<const char*>(bytes) + written, size - written);
            written += std::max<qint64>(0, more);
        } while (written < size && more > 0);
        if (written != size) {
            static_cast<TiffFile*>(file)->m_failure = device(file).errorString();
        }
        return written;
    }
    static toff_t seek(thandle_t file, toff_t offset, int from) {
        const qint64 start = from == SEEK_END ? device(file).size() : from == SEEK_CUR ? device(file).pos() : 0;
        device(file).seek(start + qint64(offset));
        return toff_t(device(file).pos());
    }
    static toff_t size(thandle_t file) { return toff_t(device(file).size()); }
    static int close(thandle_t /*file*/) { return 0; }
    /// It is told by the one who asked.
    static int beSilent(tiff* /*file*/, void* /*data*/, const char* /*module*/, const char* /*format*/, va_list) {
        return 1;
    }
};

TiffFile::TiffFile(QIODevice& device, const PictureOptions& options, bool isBig)
    : m_device(device), m_options(options) {
    TIFFOpenOptions* silent = TIFFOpenOptionsAlloc();
    TIFFOpenOptionsSetErrorHandlerExtR(silent, Access::beSilent, nullptr);
    m_file = TIFFClientOpenExt("picture", isBig ? "w8" : "w", this, Access::read, Access::write, Access::seek,
                               Access::close, Access::size, nullptr, nullptr, silent);
    TIFFOpenOptionsFree(silent);
}

TiffFile::~TiffFile() {
    if (m_file != nullptr) {
        TIFFClose(m_file);
    }
}

bool TiffFile::add(const QImage& picture, const QByteArray& description) {
    if (m_file == nullptr || picture.isNull()) {
        return false;
    }
    setTags(picture, description);
    return writeRows(plainPicture(picture)) && TIFFWriteDirectory(m_file) == 1;
}

void TiffFile::setTags(const QImage& picture, const QByteArray& description) {
    TIFFSetField(m_file, TIFFTAG_SUBFILETYPE, m_options.isMultiPage ? FILETYPE_PAGE : 0);
    TIFFSetField(m_file, TIFFTAG_IMAGEWIDTH, picture.width());
    TIFFSetField(m_file, TIFFTAG_IMAGELENGTH, picture.height());
    TIFFSetField(m_file, TIFFTAG_COMPRESSION, m_options.isPackBits ? COMPRESSION_PACKBITS : COMPRESSION_LZW);
    if (!m_options.isPackBits) {
        TIFFSetField(m_file, TIFFTAG_PREDICTOR, PREDICTOR_HORIZONTAL);
    }
    TIFFSetField(m_file, TIFFTAG_PHOTOMETRIC, PHOTOMETRIC_RGB);
    TIFFSetField(m_file, TIFFTAG_SAMPLESPERPIXEL, Channels);
    TIFFSetField(m_file, TIFFTAG_BITSPERSAMPLE, m_options.depth);
    TIFFSetField(m_file, TIFFTAG_PLANARCONFIG, PLANARCONFIG_CONTIG);
    TIFFSetField(m_file, TIFFTAG_ORIENTATION, ORIENTATION_TOPLEFT);
    TIFFSetField(m_file, TIFFTAG_ROWSPERSTRIP,
                 std::max(1, StripBytes / rowBytes(std::max(1, picture.width()), m_options.depth)));
    TIFFSetField(m_file, TIFFTAG_RESOLUTIONUNIT, RESUNIT_INCH);
    TIFFSetField(m_file, TIFFTAG_XRESOLUTION, double(picture.logicalDpiX()));
    TIFFSetField(m_file, TIFFTAG_YRESOLUTION, double(picture.logicalDpiY()));
    if (!description.isEmpty()) {
        TIFFSetField(m_file, TIFFTAG_IMAGEDESCRIPTION, description.constData());
    }
}

bool TiffFile::writeRows(const QImage& picture) {
    const PixelRow form(m_options);
    std::vector<char> row(std::size_t(rowBytes(picture.width(), m_options.depth)));
    bool isWhole = true;
    for (int y = 0; y < picture.height() && isWhole; ++y) {
        form.copy(picture, y, row.data());
        isWhole = TIFFWriteScanline(m_file, row.data(), uint32_t(y), 0) == 1;
    }
    return isWhole;
}

QByteArray tiffOf(QImage&& picture, const FileMetadata& metadata, const PictureOptions& options) {
    QBuffer buffer;
    buffer.open(QIODevice::ReadWrite);
    PictureOptions single = options;
    single.isMultiPage = false;
    bool isWhole = false;
    {
        TiffFile file(buffer, single);
        isWhole = file.add(picture, metadata.description);
    }
    return isWhole ? buffer.data() : QByteArray();
}
