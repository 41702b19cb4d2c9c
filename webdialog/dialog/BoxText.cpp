#include "BoxText.h"

namespace {

constexpr int LineLength = 50;
constexpr int MostLines = 24;
constexpr QChar LineFeed(u'\n');
constexpr QChar ZeroWidthSpace(0x200B);

/// Number of letters that stand on the first `MostLines` lines of a box.
int lengthThatFits(const QString& text) {
    int line = 1;
    int column = 0;
    for (int i = 0; i < text.size(); ++i) {
        const bool isNewLine = text.at(i) == LineFeed;
        column = isNewLine ? 0 : column + 1;
        if (isNewLine || column > LineLength) {
            column = isNewLine ? 0 : 1;
            if (++line > MostLines) {
                return i;
            }
        }
    }
    return text.size();
}

QString breakable(const QString& text) {
    QString result;
    int run = 0;
    for (const QChar letter : text) {
        run = letter.isSpace() ? 0 : run + 1;
        // Between the halves of a surrogate pair nothing may stand.
        if (run > LineLength && !letter.isLowSurrogate()) {
            result += ZeroWidthSpace;
            run = 1;
        }
        result += letter;
    }
    return result;
}

}  // namespace

BoxText fitIntoBox(const QString& text) {
    const int length = lengthThatFits(text);
    const bool cut = length < text.size();
    return {breakable(cut ? text.left(length) % QStringLiteral("\n…") : text), cut};
}
