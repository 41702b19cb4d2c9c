#include "FailureText.h"

#include "APP_ConcurrentException.h"
#include "TextKey.h"

#include <QRegularExpression>

namespace {

const QString Unknown = TextKey("Unknown failure.");

QString orUnknown(const char* text) {
    const QString said = QString::fromUtf8(text);
    return said.isEmpty() ? Unknown : said;
}

}  // namespace

QString currentFailureText() {
    try {
        throw;
    } catch (const APP_ConcurrentException& e) {
        return orUnknown(e.inner().what());
    } catch (const std::exception& e) {
        return orUnknown(e.what());
    } catch (...) {
        return Unknown;
    }
}

QString withName(const QString& failure, const QString& name) {
    const QRegularExpression word(QStringLiteral("(?<!\\w)%1(?!\\w)").arg(QRegularExpression::escape(name)),
                                  QRegularExpression::UseUnicodePropertiesOption);
    return name.isEmpty() || failure.contains(word) ? failure : QString(name % QStringLiteral(": ") % failure);
}
