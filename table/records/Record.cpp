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

void Record::setJson(QLatin1String name, const QString& json) {
    const auto member =
        std::find_if(m_members.begin(), m_members.end(), [name](const auto& each) { return each.first == name; });
    if (member != m_members.end()) {
        member->second = json;
    } else {
        m_members.append({name, json});
    }
}

void Record::appendTo(QString& json) const {
    QLatin1Char separator('{');
    for (const auto& member : m_members) {
        json += separator;
        json += QLatin1Char('"');
        json += member.first;
        json += QLatin1String("\":");
        json += member.second;
        separator = QLatin1Char(',');
    }
    json += m_members.isEmpty() ? QLatin1String("{}") : QLatin1String("}");
}
