#include "FileNameRules.h"

#include <QRegularExpression>

namespace {

const QRegularExpression& badInName() {
    static const QRegularExpression bad(QStringLiteral(R"([\\\/\*\?\|\t\n":<>%])"));
    return bad;
}

}  // namespace

bool isGoodFileName(const QString& name) {
    return !name.contains(badInName());
}

bool isGoodPath(const QString& path) {
    static const QRegularExpression bad(QStringLiteral(R"([\*\?\|\t\n"<>%])"));
    return !path.contains(bad);
}

QString sanitised(QString text, const QString& replacement) {
    text.replace(badInName(), replacement);
    if (text == QLatin1String(".") || text == QLatin1String("..")) {
        text.replace('.', replacement);
    }
    return text;
}
