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

/// The picture in a format that `PixelRow` copies from: RGBX64 where it has more than 8 bits a channel, else RGB32.
QImage plainPicture(const QImage& picture);

/// Brings the rows of pictures into the form that a file has them in. Any thread.
class PixelRow {
public:
    /// `order` is that of two bytes.
    explicit PixelRow(const PictureOptions& options, QSysInfo::Endian order = QSysInfo::ByteOrder);

    /// Puts the channels of each pixel of row `y` into `levels`; `picture` is plain. It takes no memory of a picture's
    /// size: fresh memory costs as much time as some encoders take.
    void copy(const QImage& picture, int y, char* levels) const;

private:
    void copyWide(const QImage& picture, int y, char* levels) const;
    quint16 ordered(quint16 wide) const;

    const int m_depth;
    const QSysInfo::Endian m_order;
    /// By which a channel of 16 bits is shifted down.
    const int m_shift;
    /// What stands for each of the picture's levels in 16 bits.
    std::array<quint16, 256> m_levels{};
};
