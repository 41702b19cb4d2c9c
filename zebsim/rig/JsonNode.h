#pragma once

#include <QList>
#include <QString>
#include <QStringList>
#include <QVariant>

#include <memory>

struct JsonValue;

/// A value in a JSON file that knows where it stands, so that a complaint names file, line and member: "rigs/x.json:
/// line 12: devices[2].model: no model "foo"". Everything here throws `JsonError`. Any thread.
class JsonNode {
public:
    /// Larger files are refused, in bytes.
    static constexpr qint64 MostBytes = 32 << 20;

    /// What the file `path` holds. A pipe is not waited for.
    static JsonNode fromFile(const QString& path);
    /// The same of a text that stands in a file of that name.
    static JsonNode fromText(const QString& file, const QByteArray& text);

    /// Where the value stands in its file, as "devices[2]".
    const QString& path() const { return m_path; }
    bool isObject() const;
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
    /// An object, with all that is in it, as plain data; numbers are `double`.
    QVariantMap plain() const;

    [[noreturn]] void fail(const QString& reason) const;
    /// Complains about a member of this object, which need not be there.
    [[noreturn]] void failAt(const QString& member, const QString& reason) const;

private:
    JsonNode(QString file, QString path, std::shared_ptr<const JsonValue> value);
    /// A value in this one.
    JsonNode inner(QString path, const JsonValue& value) const;
    const JsonValue& object() const;
    QString pathOf(const QString& member) const;

    QString m_file;
    QString m_path;
    /// It keeps all that the file holds.
    std::shared_ptr<const JsonValue> m_value;
};
