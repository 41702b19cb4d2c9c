#pragma once

#include <QLatin1String>
#include <QPair>
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
    void setJson(QLatin1String name, const QString& json);

    void appendTo(QString& json) const;

private:
    QVector<QPair<QLatin1String, QString>> m_members;
};
