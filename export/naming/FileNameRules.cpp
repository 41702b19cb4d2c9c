#include "FileNameRules.h"

#include <QRegularExpression>

bool isGoodFileName(const QString& name) {
    static const QRegularExpression bad(QStringLiteral(R"([\\\/\*\?\|\t\n":<>%])"));
    return !name.contains(bad);
}

bool isGoodPath(const QString& path) {
    static const QRegularExpression bad(QStringLiteral(R"([\*\?\|\t\n"<>%])"));
    return !path.contains(bad);
}
