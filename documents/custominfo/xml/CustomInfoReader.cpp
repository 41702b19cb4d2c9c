#include "CustomInfoReader.h"

#include "CustomInfoBounds.h"
#include "ItemCollector.h"

#include <QIODevice>
#include <QXmlStreamEntityResolver>
#include <QXmlStreamReader>

#include <algorithm>
#include <cstring>

namespace {

/// What the parser gets at a time, in bytes: it reads ahead of the token as much.
constexpr int Piece = 512;

/// Gives the parser its bytes, and no more of them once one token has become too long.
class TokenFeed : public QIODevice {
public:
    explicit TokenFeed(const QByteArray& bytes) : m_bytes(bytes) { open(ReadOnly | Unbuffered); }

    void tokenEnds() { m_sinceToken = 0; }
    bool isTokenTooLong() const { return m_sinceToken > CustomInfoBounds::TokenBytes; }
    bool isSequential() const override { return true; }

protected:
    qint64 readData(char* to, qint64 most) override {
        if (isTokenTooLong() || m_given == m_bytes.size()) {
            return -1;
        }
        const int count = int(std::min<qint64>({most, Piece, m_bytes.size() - m_given}));
        std::memcpy(to, m_bytes.constData() + m_given, size_t(count));
        m_given += count;
        m_sinceToken += count;
        return count;
    }
    qint64 writeData(const char*, qint64) override { return -1; }

private:
    const QByteArray& m_bytes;
    int m_given = 0;
    int m_sinceToken = 0;
};

/// Behind a document type that stands elsewhere the parser takes an entity that is declared nowhere for an empty one.
class NoEntities : public QXmlStreamEntityResolver {
public:
    QString resolveUndeclaredEntity(const QString& name) override {
        m_asked = name;
        return {};
    }
    const QString& asked() const { return m_asked; }

private:
    QString m_asked;
};

class Reader {
public:
    Reader(const QByteArray& bytes, const CustomInfoDialect& dialect) : m_feed(bytes), m_items(dialect) {
        m_xml.setDevice(&m_feed);
        m_xml.setEntityResolver(&m_entities);
        m_xml.setNamespaceProcessing(false);
        // Entities of the document type grow before its end, where they can be seen.
        m_xml.setEntityExpansionLimit(0);
    }

    CustomInfoReading read() {
        QString reason;
        while (reason.isEmpty() && !m_xml.atEnd()) {
            m_xml.readNext();
            reason = takeToken();
            m_feed.tokenEnds();
        }
        if (reason.isEmpty() && m_items.items().isEmpty()) {
            reason = QStringLiteral("it holds no item");
        }
        return {reason.isEmpty() ? m_items.items() : QList<QVariantMap>(), reason, m_xml.lineNumber(),
                m_xml.columnNumber()};
    }

private:
    /// Answers why the file holds nothing; empty while that is open.
    QString takeToken() {
        if (!m_entities.asked().isEmpty()) {
            return QStringLiteral("the entity %1 is declared nowhere").arg(m_entities.asked());
        }
        switch (m_xml.tokenType()) {
            case QXmlStreamReader::Invalid:
                return m_feed.isTokenTooLong() ? QStringLiteral("one token of it is too long") : m_xml.errorString();
            case QXmlStreamReader::DTD:
                return declares("<!ENTITY") || declares("<!ATTLIST")
                           ? QStringLiteral("its document type declares entities or attributes")
                           : QString();
            case QXmlStreamReader::StartElement:
                return startElement();
            case QXmlStreamReader::EndElement:
                m_items.endElement();
                return m_items.items().size() > CustomInfoBounds::Items ? QStringLiteral("it holds too many items")
                                                                        : QString();
            case QXmlStreamReader::Characters:
                m_xml.isCDATA() ? m_items.addCData(m_xml.text()) : m_items.addText(m_xml.text());
                break;
            default:
                m_items.endText();
        }
        return {};
    }

    QString startElement() {
        if (m_items.depth() == CustomInfoBounds::Depth) {
            return QStringLiteral("it is nested too deep");
        }
        if (m_xml.attributes().size() > CustomInfoBounds::Attributes) {
            return QStringLiteral("an element has too many attributes");
        }
        m_items.startElement(m_xml.qualifiedName().toString(), m_xml.attributes());
        return {};
    }

    bool declares(const char* what) const { return m_xml.text().contains(QLatin1String(what)); }

    TokenFeed m_feed;
    NoEntities m_entities;
    QXmlStreamReader m_xml;
    ItemCollector m_items;
};

}  // namespace

CustomInfoReading readCustomInfo(const QByteArray& bytes, const CustomInfoDialect& dialect) {
    if (bytes.size() > CustomInfoBounds::FileBytes) {
        return {{}, QStringLiteral("it is too large")};
    }
    return Reader(bytes, dialect).read();
}
