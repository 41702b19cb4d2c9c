#include "JsonNode.h"

#include "JsonError.h"
#include "JsonParser.h"
#include "WholeFile.h"

#include <cmath>

namespace {

[[noreturn]] void refuse(const QString& path, const QString& reason) {
    throw JsonError(path % QStringLiteral(": ") % reason);
}

QByteArray contentOf(const QString& path) {
    QByteArray text;
    const QString why = readPlainFile(path, JsonNode::MostBytes + 1, text);
    if (!why.isEmpty()) {
        refuse(path, why);
    }
    return text;
}

QVariant plainOf(const JsonValue& value) {
    if (value.kind == JsonValue::List) {
        QVariantList list;
        for (const JsonValue& item : value.children) {
            list.append(plainOf(item));
        }
        return list;
    }
    if (value.kind == JsonValue::Object) {
        QVariantMap map;
        for (const JsonValue& member : value.children) {
            map.insert(member.name, plainOf(member));
        }
        return map;
    }
    return value.scalar;
}

bool isOf(const JsonValue& value, QMetaType::Type type) {
    return value.kind == JsonValue::Scalar && value.scalar.userType() == type;
}

}  // namespace

JsonNode::JsonNode(QString file, QString path, std::shared_ptr<const JsonValue> value)
    : m_file(std::move(file)), m_path(std::move(path)), m_value(std::move(value)) {}

JsonNode JsonNode::inner(QString path, const JsonValue& value) const {
    return {m_file, std::move(path), std::shared_ptr<const JsonValue>(m_value, &value)};
}

JsonNode JsonNode::fromFile(const QString& path) {
    return fromText(path, contentOf(path));
}

JsonNode JsonNode::fromText(const QString& file, const QByteArray& text) {
    if (text.size() > MostBytes) {
        refuse(file, QStringLiteral("it is larger than %1 MiB").arg(MostBytes >> 20));
    }
    try {
        return {file, {}, std::make_shared<const JsonValue>(parseJson(text))};
    } catch (const JsonParseError& error) {
        throw JsonError(QStringLiteral("%1: line %2: %3").arg(file, QString::number(error.line), error.reason));
    }
}

void JsonNode::fail(const QString& reason) const {
    const QString place = m_path.isEmpty() ? QString() : QString(m_path % QStringLiteral(": "));
    const QString line = QStringLiteral(": line ") % QString::number(m_value->line) % QStringLiteral(": ");
    throw JsonError(m_file % line % place % reason);
}

void JsonNode::failAt(const QString& member, const QString& reason) const {
    const JsonValue* value = m_value->member(member);
    inner(pathOf(member), value != nullptr ? *value : *m_value).fail(reason);
}

QString JsonNode::pathOf(const QString& member) const {
    return m_path.isEmpty() ? member : QString(m_path % QLatin1Char('.') % member);
}

bool JsonNode::isObject() const {
    return m_value->kind == JsonValue::Object;
}

const JsonValue& JsonNode::object() const {
    if (!isObject()) {
        fail(QStringLiteral("an object is expected"));
    }
    return *m_value;
}

bool JsonNode::has(const QString& member) const {
    return object().member(member) != nullptr;
}

JsonNode JsonNode::member(const QString& name) const {
    const JsonValue* value = object().member(name);
    if (value == nullptr) {
        failAt(name, QStringLiteral("missing"));
    }
    return inner(pathOf(name), *value);
}

QList<JsonNode> JsonNode::items() const {
    if (m_value->kind != JsonValue::List) {
        fail(QStringLiteral("a list is expected"));
    }
    QList<JsonNode> nodes;
    for (const JsonValue& item : m_value->children) {
        nodes.append(inner(QStringLiteral("%1[%2]").arg(m_path).arg(nodes.size()), item));
    }
    return nodes;
}

void JsonNode::allowOnly(const QStringList& names) const {
    for (const JsonValue& member : object().children) {
        if (!names.contains(member.name)) {
            failAt(member.name, QStringLiteral("there is no such member"));
        }
    }
}

QString JsonNode::text() const {
    if (!isOf(*m_value, QMetaType::QString)) {
        fail(QStringLiteral("a text is expected"));
    }
    return m_value->scalar.toString();
}

bool JsonNode::flag() const {
    if (!isOf(*m_value, QMetaType::Bool)) {
        fail(QStringLiteral("true or false is expected"));
    }
    return m_value->scalar.toBool();
}

int JsonNode::number(int lowest, int highest) const {
    const double number = m_value->scalar.toDouble();
    if (!isOf(*m_value, QMetaType::Double) || number != std::floor(number) || number < lowest || number > highest) {
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
    object();
    return plainOf(*m_value).toMap();
}
