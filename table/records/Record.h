#pragma once

#include <QLatin1String>
#include <QString>
#include <QVector>

/// One row as the page gets it: the members of a JSON object, in the order in which they were first set.
///
/// A value is kept as the JSON text it will be, so that copies are cheap and lists that many cameras have in
/// common are written once. Names are literals; setting one again replaces its value.
class Record {
public:
    void setText(QLatin1String name, const QString& text);
    void setFlag(QLatin1String name, bool on);
    void setNumber(QLatin1String name, int number);
    /// `json` is JSON already.
    void setJson(QLatin1String name, const QString& json) { set(name, json, false); }
    /// The same of a list that many cameras have in common.
    void setList(QLatin1String name, const QString& json) { set(name, json, true); }

    void appendTo(QString& json) const {
        appendTo(json, [](const QString& list) -> const QString& { return list; });
    }
    /// With what `shortened` makes of each list in its place.
    template <typename Shortened>
    void appendTo(QString& json, Shortened&& shortened) const;

private:
    struct Member {
        QLatin1String name;
        QString json;
        bool isList = false;
    };

    void set(QLatin1String name, const QString& json, bool isList);

    QVector<Member> m_members;
};

template <typename Shortened>
void Record::appendTo(QString& json, Shortened&& shortened) const {
    QLatin1Char separator('{');
    for (const Member& member : m_members) {
        json += separator;
        json += QLatin1Char('"');
        json += member.name;
        json += QLatin1String("\":");
        json += member.isList ? shortened(member.json) : member.json;
        separator = QLatin1Char(',');
    }
    json += m_members.isEmpty() ? QLatin1String("{}") : QLatin1String("}");
}
