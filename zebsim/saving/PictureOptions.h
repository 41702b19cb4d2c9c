#pragma once

enum class TiffCompression { None, PackBits, Lzw, Deflate };

/// Of deflate, in PNG and TIFF; a higher one takes several times as long for a few bytes in a hundred.
constexpr int DeflateLevel = 1;

/// How pictures are written. What a kind of file does not have is passed over.
struct PictureOptions {
    /// Bits a channel, 8 or 16, of PNG and TIFF.
    int depth = 8;
    TiffCompression compression = TiffCompression::Lzw;
    /// Of TIFF: the frames of a track are the pages of one file.
    bool isMultiPage = false;
    /// From 0 to 100.
    int jpegQuality = 95;
};
