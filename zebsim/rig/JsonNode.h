#pragma once

#include <QJsonValue>
#include <QList>
#include <QString>
#include <QStringList>

/// A value in a JSON file that knows where it stands, so that a complaint names file and member: "rigs/x.json:
/// devices[2].model: no model "foo"". Everything here throws `RigError`.
class JsonNode {
public:
    /// The object that the file `path` holds.
    static JsonNode fromFile(const QString& path);

    /// Where the value stands in its file, as "devices[2]".
    const QString& path() const { return m_path; }
    bool has(const QString& member) const;
    /// A member of an object; must be there.
    JsonNode member(const QString& name) const;
    /// The items of a list.
    QList<JsonNode> items() const;
    /// Refuses members with other names.
    void allowOnly(const QStringList& names) const;

    QString text() const;
    bool flag() const;
    int number(int lowest, int highest) const;
    /// A list of whole numbers.
    QList<int> numbers(int lowest, int highest) const;
    QStringList texts() const;
    QVariantMap plain() const;

    [[noreturn]] void fail(const QString& reason) const;
    /// Complains about a member of this object, which need not be there.
    [[noreturn]] void failAt(const QString& member, const QString& reason) const;

private:
    JsonNode(QString file, QString path, QJsonValue value);
    QJsonObject object() const;
    QString pathOf(const QString& member) const;

    QString m_file;
    QString m_path;
    QJsonValue m_value;
};
