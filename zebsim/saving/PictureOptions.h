#pragma once

enum class TiffCompression { None, PackBits, Lzw, Deflate };

/// How pictures are written. What a kind of file does not have is passed over.
struct PictureOptions {
    /// Bits a colour, 8 or 16, of PNG and TIFF.
    int depth = 8;
    TiffCompression compression = TiffCompression::Lzw;
    /// Of TIFF: the frames of a track are the pages of one file.
    bool isMultiPage = false;
    /// From 0 to 100.
    int jpegQuality = 95;
};
