#pragma once

#include <QSysInfo>
#include <QtGlobal>

#include <array>

class QImage;
struct PictureOptions;

/// Red, green and blue.
constexpr int Channels = 3;

/// Bytes of a row with 8 or 16 bits a channel.
constexpr int rowBytes(int width, int depth) {
    return width * Channels * depth / 8;
}

/// Brings the rows of pictures into the form that a file has them in. Any thread.
class PixelRow {
public:
    /// `order` is that of two bytes.
    explicit PixelRow(const PictureOptions& options, QSysInfo::Endian order = QSysInfo::ByteOrder);

    /// Puts the channels of each pixel of row `y` into `levels`; `picture` is of the format RGB32. It takes no memory
    /// of a picture's size: fresh memory costs as much time as some encoders take.
    void copy(const QImage& picture, int y, char* levels) const;

private:
    const int m_depth;
    /// What stands for each of the picture's levels in 16 bits.
    std::array<quint16, 256> m_levels{};
};
