#include "PictureEncoder.h"

#include <algorithm>
#include <csetjmp>
#include <vector>

#include <png.h>

namespace {

/// A higher one takes several times as long for a few bytes in a hundred.
constexpr int Level = 1;
constexpr int ChunkBytes = 1 << 16;
/// Of texts; what is shorter hardly shrinks.
constexpr int LongText = 1000;

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

void setHeader(png_structp png, png_infop info, const QImage& picture, const std::vector<png_text>& texts) {
    const bool isDeep = picture.format() == QImage::Format_RGBX64;
    png_set_compression_level(png, Level);
    png_set_compression_buffer_size(png, ChunkBytes);
    png_set_filter(png, PNG_FILTER_TYPE_BASE, PNG_FILTER_NONE);
    png_set_IHDR(png, info, png_uint_32(picture.width()), png_uint_32(picture.height()), isDeep ? 16 : 8,
                 PNG_COLOR_TYPE_RGB, PNG_INTERLACE_NONE, PNG_COMPRESSION_TYPE_BASE, PNG_FILTER_TYPE_BASE);
    png_set_text(png, info, texts.data(), int(texts.size()));
    png_write_info(png, info);
    if (isDeep) {
        png_set_filler(png, 0, PNG_FILLER_AFTER);
    }
    if (isDeep && Q_BYTE_ORDER == Q_LITTLE_ENDIAN) {
        png_set_swap(png);
    }
}

/// An error of the library jumps over it, so nothing in it needs a destructor.
bool writePicture(png_structp png, png_infop info, const QImage& picture, const std::vector<png_text>& texts) {
    if (setjmp(png_jmpbuf(png)) != 0) {
        return false;
    }
    setHeader(png, info, picture, texts);
    for (int y = 0; y < picture.height(); ++y) {
        png_write_row(png, picture.constScanLine(y));
    }
    png_write_end(png, info);
    return true;
}

}  // namespace

QByteArray pngOf(QImage& picture, const FileMetadata& metadata, const PictureOptions& options) {
    const QImage plain = picture.convertToFormat(options.depth == 16 ? QImage::Format_RGBX64 : QImage::Format_RGB888);
    std::vector<Text> texts = textsOf(metadata);
    const std::vector<png_text> entries = pngTexts(texts);
    QByteArray bytes;
    png_structp png = png_create_write_struct(PNG_LIBPNG_VER_STRING, nullptr, leave, beSilent);
    png_infop info = png == nullptr ? nullptr : png_create_info_struct(png);
    bool isWhole = false;
    if (info != nullptr && !plain.isNull()) {
        png_set_write_fn(png, &bytes, append, nullptr);
        isWhole = writePicture(png, info, plain, entries);
    }
    png_destroy_write_struct(&png, &info);
    return isWhole ? bytes : QByteArray();
}
