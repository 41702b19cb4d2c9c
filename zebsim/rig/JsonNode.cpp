#include "JsonNode.h"

#include "RigError.h"

#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <cmath>

JsonNode::JsonNode(QString file, QString path, QJsonValue value)
    : m_file(std::move(file)), m_path(std::move(path)), m_value(std::move(value)) {}

JsonNode JsonNode::fromFile(const QString& path) {
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        throw RigError(path % QStringLiteral(": ") % file.errorString());
    }
    const QByteArray text = file.readAll();
    QJsonParseError error;
    const QJsonDocument document = QJsonDocument::fromJson(text, &error);
    if (error.error != QJsonParseError::NoError) {
        const int line = 1 + text.left(error.offset).count('\n');
        throw RigError(QStringLiteral("%1: line %2: %3").arg(path).arg(line).arg(error.errorString()));
    }
    if (!document.isObject()) {
        throw RigError(path % QStringLiteral(": an object is expected"));
    }
    return {path, {}, document.object()};
}

void JsonNode::fail(const QString& reason) const {
    const QString place = m_path.isEmpty() ? QString() : QString(m_path % QStringLiteral(": "));
    throw RigError(m_file % QStringLiteral(": ") % place % reason);
}

void JsonNode::failAt(const QString& member, const QString& reason) const {
    JsonNode(m_file, pathOf(member), {}).fail(reason);
}

QString JsonNode::pathOf(const QString& member) const {
    return m_path.isEmpty() ? member : QString(m_path % QLatin1Char('.') % member);
}

QJsonObject JsonNode::object() const {
    if (!m_value.isObject()) {
        fail(QStringLiteral("an object is expected"));
    }
    return m_value.toObject();
}

bool JsonNode::has(const QString& member) const {
    return object().contains(member);
}

JsonNode JsonNode::member(const QString& name) const {
    if (!has(name)) {
        failAt(name, QStringLiteral("missing"));
    }
    return {m_file, pathOf(name), object().value(name)};
}

QList<JsonNode> JsonNode::items() const {
    if (!m_value.isArray()) {
        fail(QStringLiteral("a list is expected"));
    }
    QList<JsonNode> nodes;
    for (const QJsonValue value : m_value.toArray()) {
        nodes.append(JsonNode(m_file, QStringLiteral("%1[%2]").arg(m_path).arg(nodes.size()), value));
    }
    return nodes;
}

void JsonNode::allowOnly(const QStringList& names) const {
    for (const QString& name : object().keys()) {
        if (!names.contains(name)) {
            failAt(name, QStringLiteral("there is no such member"));
        }
    }
}

QString JsonNode::text() const {
    if (!m_value.isString()) {
        fail(QStringLiteral("a text is expected"));
    }
    return m_value.toString();
}

bool JsonNode::flag() const {
    if (!m_value.isBool()) {
        fail(QStringLiteral("true or false is expected"));
    }
    return m_value.toBool();
}

int JsonNode::number(int lowest, int highest) const {
    const double number = m_value.toDouble();
    if (!m_value.isDouble() || number != std::floor(number) || number < lowest || number > highest) {
        fail(QStringLiteral("a whole number from %1 to %2 is expected").arg(lowest).arg(highest));
    }
    return static_cast<int>(number);
}

QList<int> JsonNode::numbers(int lowest, int highest) const {
    QList<int> numbers;
    for (const JsonNode& item : items()) {
        numbers.append(item.number(lowest, highest));
    }
    return numbers;
}

QStringList JsonNode::texts() const {
    QStringList texts;
    for (const JsonNode& item : items()) {
        texts.append(item.text());
    }
    return texts;
}

QVariantMap JsonNode::plain() const {
    return object().toVariantMap();
}
