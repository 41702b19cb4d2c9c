#include "PlainText.h"

QString plainText(const QString& text) {
    return QString(text).replace(QStringLiteral("<br>"), QStringLiteral("\n"));
}
