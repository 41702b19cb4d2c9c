#include "SelectBoxText.h"

#include <QChar>
#include <QFont>
#include <QFontMetrics>

namespace {

constexpr uint LastAscii = 127;

bool isOf(QChar::Category category, uint character) {
    return character > LastAscii && QChar::category(character) == category;
}

bool isLower(uint character) {
    return (character >= 'a' && character <= 'z') || isOf(QChar::Letter_Lowercase, character);
}

bool isUpper(uint character) {
    return (character >= 'A' && character <= 'Z') || isOf(QChar::Letter_Uppercase, character);
}

bool isIdeograph(uint character) {
    return character >= 0x4E01 && character <= 0x9FEA;
}

}  // namespace

SelectBoxFont selectBoxFont(uint character) {
    const QString latin = QStringLiteral("Segoe UI");
    const QString meiryo = QStringLiteral("\u30E1\u30A4\u30EA\u30AA");
    if (isLower(character)) {
        return {latin, 15, 15};
    }
    if (isUpper(character)) {
        return {latin, 16, 16};
    }
    if (isIdeograph(character)) {
        return {meiryo, 14, 14};
    }
    return {meiryo, 17, 17};
}

int selectBoxTextWidth(const QString& text) {
    int width = 0;
    for (const uint character : text.toUcs4()) {
        const SelectBoxFont font = selectBoxFont(character);
        const QFontMetrics metrics(QFont(font.family, font.pointSize, font.weight));
        width += metrics.boundingRect(QString::fromUcs4(&character, 1)).width();
    }
    return width;
}
