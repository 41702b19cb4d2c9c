#include "NumberText.h"

#include <algorithm>

namespace {

/// No file system takes a longer name.
constexpr int MostDigits = 255;

QString piece(QChar letter, int number, int digits) {
    return digits < 1 ? QString()
                      : letter + QStringLiteral("%1").arg(number, std::min(digits, MostDigits), 10, QChar('0'));
}

}  // namespace

QString numberText(int camera, int head, int session, int cameraDigits, int headDigits, int sessionDigits) {
    return piece('C', camera, cameraDigits) + piece('H', head, headDigits) + piece('S', session, sessionDigits);
}
