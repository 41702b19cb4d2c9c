#pragma once

class QImage;

/// Red, green and blue.
constexpr int Channels = 3;

/// Bytes of a row with 8 or 16 bits a channel.
constexpr int rowBytes(int width, int depth) {
    return width * Channels * depth / 8;
}

/// Puts the channels of each pixel of row `y` into `levels`, `depth` bits each; `picture` is of the format RGB32. It
/// takes no memory of a picture's size: fresh memory costs as much time as some encoders take. Any thread.
void copyRow(const QImage& picture, int y, int depth, char* levels);
