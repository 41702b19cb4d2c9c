#pragma once

/// How pictures are written. What a kind of file does not have is passed over.
struct PictureOptions {
    /// Bits a channel, 8 or 16, of PNG and TIFF.
    int depth = 8;
    /// Of those 16, the ones that the camera has filled are the lower ones, else the upper ones.
    bool isLower = false;
    /// Bits of a channel that the camera has filled, 8 to 16.
    int cameraBits = 8;
    /// Of PNG: a small file is worth its time.
    bool isSmall = false;
    /// Of TIFF: compressed by PackBits, else by LZW.
    bool isPackBits = false;
    /// Of TIFF: the frames of a track are the pages of one file.
    bool isMultiPage = false;
    /// From 0 to 100.
    int jpegQuality = 95;
};
