#pragma once

#include <QByteArray>
#include <QString>
#include <QVariant>

#include <vector>

/// A value in a JSON text.
struct JsonValue {
    enum Kind { Scalar, List, Object };

    Kind kind = Scalar;
    /// From 1: where the value ends, or a list or an object begins.
    int line = 1;
    /// Of a member of an object.
    QString name;
    /// Nothing for `null`, else a `bool`, `double` or `QString`.
    QVariant scalar;
    /// Items of a list, members of an object.
    std::vector<JsonValue> children;

    /// A member of an object; null when there is none.
    const JsonValue* member(const QString& wanted) const;
};

/// A text that is no JSON, or too much of it.
struct JsonParseError {
    int line = 1;
    QString reason;
};

/// Reads a text in UTF-8, with a byte order mark or without. Throws `JsonParseError`, also for a member that stands
/// twice, at more than 64 levels and at more than a million values. Any thread.
JsonValue parseJson(const QByteArray& text);
