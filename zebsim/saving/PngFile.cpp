#include "PictureEncoder.h"
#include "PixelRow.h"

#include <algorithm>
#include <csetjmp>
#include <memory>
#include <vector>

#include <libdeflate.h>
#include <png.h>

namespace {

/// Of texts; what is shorter hardly shrinks.
constexpr int LongText = 1000;
/// Levels of deflate. The one for small files takes up to twenty times as long for a tenth of the bytes; the levels
/// above it five times more.
constexpr int QuickLevel = 1;
constexpr int SmallLevel = 9;

struct Text {
    QByteArray name;
    QByteArray value;
    bool isAscii;
};

bool isAscii(const QString& text) {
    return std::all_of(text.begin(), text.end(), [](QChar letter) {
        return letter == QLatin1Char('\n') || (letter >= QLatin1Char(' ') && letter <= QLatin1Char('~'));
    });
}

std::vector<Text> textsOf(const FileMetadata& metadata) {
    std::vector<Text> texts;
    for (const auto& [name, value] : metadata.tags) {
        texts.push_back({name.toLatin1(), value.toUtf8(), isAscii(value)});
    }
    if (!metadata.description.isEmpty()) {
        texts.push_back({"Description", metadata.description, true});
    }
    return texts;
}

/// They point into `texts`.
std::vector<png_text> pngTexts(std::vector<Text>& texts) {
    std::vector<png_text> answer;
    for (Text& text : texts) {
        const bool isLong = text.value.size() > LongText;
        png_text entry{};
        entry.compression = text.isAscii ? (isLong ? PNG_TEXT_COMPRESSION_zTXt : PNG_TEXT_COMPRESSION_NONE)
                                         : (isLong ? PNG_ITXT_COMPRESSION_zTXt : PNG_ITXT_COMPRESSION_NONE);
        entry.key = text.name.data();
        entry.text = text.value.data();
        entry.text_length = text.isAscii ? std::size_t(text.value.size()) : 0;
        entry.itxt_length = text.isAscii ? 0 : std::size_t(text.value.size());
        answer.push_back(entry);
    }
    return answer;
}

/// Nothing may be thrown through the library.
void append(png_structp png, png_bytep bytes, std::size_t size) {
    bool isDone = true;
    try {
        static_cast<QByteArray*>(png_get_io_ptr(png))->append(reinterpret_cast<const char*>(bytes), int(size));
    } catch (...) {
        isDone = false;
    }
    if (!isDone) {
        png_error(png, "no memory");
    }
}

[[noreturn]] void leave(png_structp png, png_const_charp /*text*/) {
    png_longjmp(png, 1);
}

void beSilent(png_structp /*png*/, png_const_charp /*text*/) {}

/// What a thread compresses pixels with. It is kept from picture to picture, for fresh memory takes as long as all
/// else.
class Compressor {
public:
    explicit Compressor(int level) : m_compressor(libdeflate_alloc_compressor(level), libdeflate_free_compressor) {}

    /// The rows as the file has them, compressed: each begins with how it is filtered, which none is.
    QByteArray compressed(const QImage& picture, const PictureOptions& options) {
        const QImage plain = plainPicture(picture);
        const PixelRow form(options, QSysInfo::BigEndian);
        const int size = 1 + rowBytes(plain.width(), options.depth);
        m_rows.resize(std::size_t(plain.height()) * std::size_t(size));
        char* row = m_rows.data();
        for (int y = 0; y < plain.height(); ++y, row += size) {
            *row = PNG_FILTER_VALUE_NONE;
            form.copy(plain, y, row + 1);
        }
        return deflated();
    }

private:
    QByteArray deflated() const {
        const std::size_t most = libdeflate_zlib_compress_bound(m_compressor.get(), m_rows.size());
        QByteArray bytes(int(most), Qt::Uninitialized);
        bytes.truncate(
            int(libdeflate_zlib_compress(m_compressor.get(), m_rows.data(), m_rows.size(), bytes.data(), most)));
        return bytes;
    }

    std::vector<char> m_rows;
    /// Of the libraries for it the quickest.
    const std::unique_ptr<libdeflate_compressor, decltype(&libdeflate_free_compressor)> m_compressor;
};

void writeChunk(png_structp png, const char* name, const QByteArray& bytes) {
    png_write_chunk(png, reinterpret_cast<png_const_bytep>(name), reinterpret_cast<png_const_bytep>(bytes.constData()),
                    std::size_t(bytes.size()));
}

/// An error of the library jumps over it, so nothing in it needs a destructor.
bool writeAll(png_structp png, png_infop info, const QSize& size, int depth, const std::vector<png_text>& texts,
              const QByteArray& pixels) {
    static const QByteArray nothing;
    if (setjmp(png_jmpbuf(png)) != 0) {
        return false;
    }
    png_set_IHDR(png, info, png_uint_32(size.width()), png_uint_32(size.height()), depth, PNG_COLOR_TYPE_RGB,
                 PNG_INTERLACE_NONE, PNG_COMPRESSION_TYPE_BASE, PNG_FILTER_TYPE_BASE);
    png_set_text(png, info, texts.data(), int(texts.size()));
    png_write_info(png, info);
    writeChunk(png, "IDAT", pixels);
    writeChunk(png, "IEND", nothing);
    return true;
}

}  // namespace

QByteArray pngOf(QImage&& picture, const FileMetadata& metadata, const PictureOptions& options) {
    std::vector<Text> texts = textsOf(metadata);
    const std::vector<png_text> entries = pngTexts(texts);
    QByteArray bytes;
    png_structp png = png_create_write_struct(PNG_LIBPNG_VER_STRING, nullptr, leave, beSilent);
    png_infop info = png == nullptr ? nullptr : png_create_info_struct(png);
    bool isWhole = false;
    if (info != nullptr && !picture.isNull()) {
        thread_local Compressor quick(QuickLevel);
        thread_local Compressor small(SmallLevel);
        const QByteArray pixels = (options.isSmall ? small : quick).compressed(picture, options);
        png_set_write_fn(png, &bytes, append, nullptr);
        isWhole = writeAll(png, info, picture.size(), options.depth, entries, pixels);
    }
    png_destroy_write_struct(&png, &info);
    return isWhole ? bytes : QByteArray();
}
