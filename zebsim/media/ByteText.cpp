#include "ByteText.h"

#include <QRegularExpression>
#include <QStringList>

#include <cmath>

std::optional<qint64> bytesOf(const QString& text) {
    static const QRegularExpression form(QStringLiteral("^\\s*(\\d{1,15}(?:\\.\\d{1,6})?)\\s*(B|KB|MB|GB|TB)?\\s*$"),
                                         QRegularExpression::CaseInsensitiveOption);
    static const QStringList units = {QStringLiteral("B"), QStringLiteral("KB"), QStringLiteral("MB"),
                                      QStringLiteral("GB"), QStringLiteral("TB")};
    const QRegularExpressionMatch match = form.match(text);
    if (!match.hasMatch()) {
        return std::nullopt;
    }
    constexpr double Step = 1024;
    constexpr double Most = 1e15;
    const int power = std::max(0, int(units.indexOf(match.captured(2).toUpper())));
    const double bytes = match.captured(1).toDouble() * std::pow(Step, power);
    return bytes <= Most ? std::optional<qint64>(std::llround(bytes)) : std::nullopt;
}
