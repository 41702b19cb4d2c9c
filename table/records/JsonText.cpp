#include "JsonText.h"

namespace jsontext {

namespace {

bool needsEscape(QChar c) {
    return c.unicode() < 0x20 || c == QLatin1Char('"') || c == QLatin1Char('\\');
}

void appendEscaped(QString& json, QChar c) {
    if (c.unicode() >= 0x20) {
        json += QLatin1Char('\\');
        json += c;
        return;
    }
    json += QLatin1String("\\u00");
    json += QLatin1Char("01"[c.unicode() >> 4]);
    json += QLatin1Char("0123456789abcdef"[c.unicode() & 0xF]);
}

}  // namespace

void appendString(QString& json, const QString& text) {
    json += QLatin1Char('"');
    int plain = 0;
    for (int i = 0; i < text.size(); ++i) {
        if (needsEscape(text.at(i))) {
            json.append(text.constData() + plain, i - plain);
            appendEscaped(json, text.at(i));
            plain = i + 1;
        }
    }
    json.append(text.constData() + plain, text.size() - plain);
    json += QLatin1Char('"');
}

QString string(const QString& text) {
    QString json;
    json.reserve(text.size() + 2);
    appendString(json, text);
    return json;
}

QString array(const QStringList& items) {
    return QLatin1Char('[') % items.join(QLatin1Char(',')) % QLatin1Char(']');
}

QString choice(const QString& name, const QString& value) {
    QString json = QStringLiteral("{\"name\":");
    appendString(json, name);
    json += QLatin1String(",\"value\":");
    appendString(json, value);
    json += QLatin1Char('}');
    return json;
}

}  // namespace jsontext
