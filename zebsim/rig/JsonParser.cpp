#include "JsonParser.h"

#include <QSet>

#include <rapidjson/error/en.h>
#include <rapidjson/memorystream.h>
#include <rapidjson/reader.h>

#include <algorithm>
#include <cmath>

namespace {

constexpr std::size_t MostLevels = 64;
constexpr int MostValues = 1'000'000;
const QByteArray ByteOrderMark = "\xEF\xBB\xBF";
const char* const SameMemberTwice = "the member \"%1\" stands twice";

/// Counts the lines of a text, on and on. Before the place that was reached it counts anew.
class LineCount {
public:
    explicit LineCount(const QByteArray& text) : m_text(text) {}

    int at(std::size_t offset) {
        const int end = std::min(int(offset), m_text.size());
        if (end < m_offset) {
            m_offset = 0;
            m_line = 1;
        }
        m_line += int(std::count(m_text.begin() + m_offset, m_text.begin() + end, '\n'));
        m_offset = end;
        return m_line;
    }

private:
    const QByteArray& m_text;
    int m_offset = 0;
    int m_line = 1;
};

/// Takes what the reader finds. Each operation answers whether the reader is to go on.
class TreeBuilder {
public:
    TreeBuilder(const rapidjson::MemoryStream& stream, LineCount& lines) : m_stream(stream), m_lines(lines) {}

    JsonValue root;
    /// Why it did not go on.
    QString reason;

    bool Null() { return add({}); }
    bool Bool(bool value) { return add(value); }
    /// Numbers come as they stand in the text, for the reader's own conversion is undefined for "0e70".
    bool RawNumber(const char* text, unsigned int length, bool /*copy*/) {
        const double value = QByteArray::fromRawData(text, int(length)).toDouble();
        return std::isfinite(value) ? add(value) : refuse(QStringLiteral("the number is too large"));
    }
    bool Int(int) { return false; }
    bool Uint(unsigned int) { return false; }
    bool Int64(qint64) { return false; }
    bool Uint64(quint64) { return false; }
    bool Double(double) { return false; }
    bool String(const char* text, unsigned int length, bool /*copy*/) {
        return isWhole(text, length) && add(QString::fromUtf8(text, int(length)));
    }
    bool Key(const char* text, unsigned int length, bool /*copy*/) {
        m_name = QString::fromUtf8(text, int(length));
        if (m_open.back().names.contains(m_name)) {
            return refuse(QString::fromLatin1(SameMemberTwice).arg(m_name));
        }
        m_open.back().names.insert(m_name);
        return isWhole(text, length);
    }
    bool StartObject() { return open(JsonValue::Object); }
    bool StartArray() { return open(JsonValue::List); }
    bool EndObject(unsigned int /*members*/) { return close(); }
    bool EndArray(unsigned int /*items*/) { return close(); }

private:
    /// A list or an object that has not ended yet.
    struct Open {
        JsonValue* value;
        QSet<QString> names;
    };

    bool refuse(const QString& why) {
        reason = why;
        return false;
    }

    /// The reader lets the second half of a surrogate pair pass alone.
    bool isWhole(const char* text, unsigned int length) {
        const auto isSurrogate = [](char first, char second) {
            return first == '\xED' && static_cast<unsigned char>(second) >= 0xA0;
        };
        return std::adjacent_find(text, text + length, isSurrogate) == text + length ||
               refuse(QStringLiteral("half of a surrogate pair stands alone"));
    }

    JsonValue* place(JsonValue::Kind kind) {
        JsonValue* value = &root;
        if (!m_open.empty()) {
            m_open.back().value->children.emplace_back();
            value = &m_open.back().value->children.back();
            value->name = std::exchange(m_name, {});
        }
        value->kind = kind;
        value->line = m_lines.at(m_stream.Tell());
        return value;
    }
    bool count() {
        ++m_values;
        return m_values <= MostValues || refuse(QStringLiteral("there are more than %1 values").arg(MostValues));
    }
    bool add(const QVariant& scalar) {
        place(JsonValue::Scalar)->scalar = scalar;
        return count();
    }
    bool open(JsonValue::Kind kind) {
        m_open.push_back({place(kind), {}});
        return count() &&
               (m_open.size() <= MostLevels || refuse(QStringLiteral("there are more than %1 levels").arg(MostLevels)));
    }
    bool close() {
        m_open.pop_back();
        return true;
    }

    const rapidjson::MemoryStream& m_stream;
    LineCount& m_lines;
    QString m_name;
    std::vector<Open> m_open;
    int m_values = 0;
};

/// As a part of a line.
QString reasonOf(rapidjson::ParseErrorCode code) {
    if (code == rapidjson::kParseErrorDocumentEmpty) {
        return QStringLiteral("the file is empty");
    }
    QString reason = QString::fromLatin1(rapidjson::GetParseError_En(code));
    reason.chop(reason.endsWith(QLatin1Char('.')) ? 1 : 0);
    return reason.left(1).toLower() % reason.mid(1);
}

}  // namespace

const JsonValue* JsonValue::member(const QString& wanted) const {
    const auto found =
        std::find_if(children.begin(), children.end(), [&](const JsonValue& child) { return child.name == wanted; });
    return kind == Object && found != children.end() ? &*found : nullptr;
}

JsonValue parseJson(const QByteArray& text) {
    // Those of other encodings have one too.
    if (text.contains('\0') || text.startsWith("\xFF\xFE") || text.startsWith("\xFE\xFF")) {
        throw JsonParseError{1, QStringLiteral("it is no text in UTF-8")};
    }
    const std::size_t skipped = text.startsWith(ByteOrderMark) ? std::size_t(ByteOrderMark.size()) : 0;
    rapidjson::MemoryStream stream(text.constData(), std::size_t(text.size()));
    stream.src_ += skipped;
    LineCount lines(text);
    TreeBuilder builder(stream, lines);
    rapidjson::Reader reader;
    constexpr unsigned int flags =
        rapidjson::kParseIterativeFlag | rapidjson::kParseValidateEncodingFlag | rapidjson::kParseNumbersAsStringsFlag;
    const rapidjson::ParseResult result = reader.Parse<flags>(stream, builder);
    if (result.IsError()) {
        const QString reason = builder.reason.isEmpty() ? reasonOf(result.Code()) : builder.reason;
        throw JsonParseError{lines.at(result.Offset()), reason};
    }
    return std::move(builder.root);
}
