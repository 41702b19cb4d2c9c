#include "PixelRow.h"

#include <QImage>

#include <algorithm>

void copyRow(const QImage& picture, int y, int depth, char* levels) {
    const int count = picture.width() * Channels;
    const QImage row = QImage(picture.constScanLine(y), picture.width(), 1, QImage::Format_RGB32)
                           .convertToFormat(QImage::Format_RGB888);
    const uchar* from = row.constBits();
    if (depth == 8) {
        std::copy_n(from, count, levels);
        return;
    }
    // 257 times as much: both bytes are alike, whichever comes first.
    std::for_each(from, from + count, [&levels](uchar level) {
        *levels++ = char(level);
        *levels++ = char(level);
    });
}
