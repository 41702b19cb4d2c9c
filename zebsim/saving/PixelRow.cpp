#include "PixelRow.h"

#include "PictureOptions.h"

#include <QImage>
#include <QtEndian>

#include <algorithm>
#include <cstring>

namespace {

/// What a camera with so many bits has made of a level of 8 bits. Full brightness stays that.
quint16 cameraLevel(unsigned int level, int bits) {
    return quint16(level * 257 >> (16 - bits));
}

}  // namespace

QImage plainPicture(const QImage& picture) {
    const bool isWide = picture.depth() > 32;
    return picture.convertToFormat(isWide ? QImage::Format_RGBX64 : QImage::Format_RGB32);
}

PixelRow::PixelRow(const PictureOptions& options, QSysInfo::Endian order)
    : m_depth(options.depth),
      m_order(order),
      m_shift(options.isLower ? 16 - std::clamp(options.cameraBits, 8, 16) : 0) {
    const int bits = std::clamp(options.cameraBits, 8, 16);
    for (unsigned int level = 0; level < m_levels.size(); ++level) {
        const quint16 own = cameraLevel(level, bits);
        // 8 bits fill all 16.
        const auto wide = quint16(options.isLower ? own : bits == 8 ? level * 257 : own << (16 - bits));
        m_levels[level] = ordered(wide);
    }
}

quint16 PixelRow::ordered(quint16 wide) const {
    return m_order == QSysInfo::BigEndian ? qToBigEndian(wide) : qToLittleEndian(wide);
}

void PixelRow::copyWide(const QImage& picture, int y, char* levels) const {
    const auto* pixels = reinterpret_cast<const QRgba64*>(picture.constScanLine(y));
    for (int x = 0; x < picture.width(); ++x) {
        for (const quint16 channel : {pixels[x].red(), pixels[x].green(), pixels[x].blue()}) {
            const quint16 level = ordered(quint16(channel >> m_shift));
            std::memcpy(levels, &level, sizeof level);
            levels += sizeof level;
        }
    }
}

void PixelRow::copy(const QImage& picture, int y, char* levels) const {
    if (m_depth == 16 && picture.format() == QImage::Format_RGBX64) {
        copyWide(picture, y, levels);
        return;
    }
    const int count = picture.width() * Channels;
    const QImage row =
        QImage(picture.constScanLine(y), picture.width(), 1, picture.format()).convertToFormat(QImage::Format_RGB888);
    const uchar* from = row.constBits();
    if (m_depth == 8) {
        std::copy_n(from, count, levels);
        return;
    }
    std::for_each(from, from + count, [this, &levels](uchar level) {
        std::memcpy(levels, &m_levels[level], sizeof(quint16));
        levels += sizeof(quint16);
    });
}
