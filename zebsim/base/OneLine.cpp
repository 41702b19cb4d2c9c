#include "OneLine.h"

namespace {

bool isLineBreaking(QChar letter) {
    const QChar::Category category = letter.category();
    return category == QChar::Other_Control || category == QChar::Separator_Line ||
           category == QChar::Separator_Paragraph;
}

}  // namespace

QString inOneLine(const QString& text) {
    QString line;
    for (const QChar letter : text) {
        if (!isLineBreaking(letter)) {
            line += letter;
        } else if (letter == QLatin1Char('\n')) {
            line += QStringLiteral("\\n");
        } else {
            line += QStringLiteral("\\u%1").arg(letter.unicode(), 4, 16, QLatin1Char('0'));
        }
    }
    return line;
}
