#include "Record.h"

#include "JsonText.h"

#include <algorithm>

void Record::setText(QLatin1String name, const QString& text) {
    setJson(name, text.isEmpty() ? QStringLiteral("\"\"") : jsontext::string(text));
}

void Record::setFlag(QLatin1String name, bool on) {
    setJson(name, on ? QStringLiteral("true") : QStringLiteral("false"));
}

void Record::setNumber(QLatin1String name, int number) {
    setJson(name, QString::number(number));
}

void Record::set(QLatin1String name, const QString& json, bool isList) {
    const auto member =
        std::find_if(m_members.begin(), m_members.end(), [name](const Member& each) { return each.name == name; });
    if (member != m_members.end()) {
        *member = {name, json, isList};
    } else {
        m_members.append({name, json, isList});
    }
}
