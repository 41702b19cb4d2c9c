#include "CustomInfoWriter.h"

#include "CustomInfoBounds.h"

#include <QChar>

namespace {

using namespace CustomInfoBounds;

/// How much of an item's name stands in the reason of a refusal, in letters.
constexpr int NameInReason = 80;

bool isKept(QChar letter) {
    const ushort code = letter.unicode();
    return code >= 0x20 ? !letter.isSurrogate() && code < 0xFFFE : code == '\t' || code == '\n' || code == '\r';
}

QString escaped(QChar letter, const QString& before) {
    switch (letter.unicode()) {
        case '&':
            return QStringLiteral("&amp;");
        case '<':
            return QStringLiteral("&lt;");
        case '>':
            return before.endsWith(QLatin1String("]]")) ? QStringLiteral("&gt;") : QString(letter);
        case '\r':  // a reader makes a line feed of a plain one
            return QStringLiteral("&#xd;");
        case QChar::ByteOrderMark:  // it is dropped where a reader's block begins with it
            return QStringLiteral("&#xfeff;");
        default:
            return letter;
    }
}

/// The text as it stands between two tags.
QByteArray contentOf(const QString& text) {
    QString content;
    for (int i = 0; i < text.size(); ++i) {
        const QChar letter = text[i];
        if (letter.isHighSurrogate() && i + 1 < text.size() && text[i + 1].isLowSurrogate()) {
            content += letter;
            content += text[++i];
        } else if (isKept(letter)) {
            content += escaped(letter, content);
        }
    }
    return content.toUtf8();
}

QByteArray element(const char* name, const QByteArray& content) {
    return QByteArray("<") + name + '>' + content + "</" + name + ">\n";
}

/// Empty when one of its texts is too long.
QByteArray elementOf(const QVariantMap& item, const CustomInfoDialect& dialect) {
    QByteArray bytes = "    <customItem>\n";
    for (const char* field : {"name", "value", "unit"}) {
        const QByteArray content = contentOf(item.value(QLatin1String(field)).toString());
        if (content.size() > TokenBytes) {
            return {};
        }
        bytes += "      " + element(field, content);
    }
    const bool isShown = item.value(QLatin1String(dialect.shownKey)).toBool();
    bytes += "      " + element("display", isShown ? "true" : "false");
    bytes += "      " + element("usefilename", isShown || dialect.allInFileNames ? "true" : "false");
    return bytes + "    </customItem>\n";
}

CustomInfoWriting refused(const char* why, const QVariantMap& item) {
    const QString name = item.value(QStringLiteral("name")).toString().left(NameInReason);
    return {{}, QString::fromLatin1(why).arg(name)};
}

}  // namespace

CustomInfoWriting writeCustomInfo(const QList<QVariantMap>& items, const QString& version,
                                  const CustomInfoDialect& dialect) {
    const QByteArray tail = items.isEmpty() ? "  <customItems/>\n</custom>\n" : "  </customItems>\n</custom>\n";
    const QByteArray versionContent = contentOf(version);
    if (versionContent.size() > TokenBytes) {
        return {{}, QStringLiteral("the text of the version is too long")};
    }
    QByteArray bytes = "<?xml version=\"1.0\" encoding=\"utf-8\" standalone=\"no\"?>\n<custom>\n";
    bytes += "  " + element("version", versionContent);
    bytes += items.isEmpty() ? "" : "  <customItems>\n";
    int count = 0;
    for (const QVariantMap& item : items) {
        const QByteArray added = elementOf(item, dialect);
        if (added.isEmpty()) {
            return refused("a text of the item \"%1\" is too long", item);
        }
        bytes += added;
        if (++count > Items || bytes.size() + tail.size() > FileBytes) {
            return refused("with the item \"%1\" the list is too long", item);
        }
    }
    return {bytes + tail, {}};
}
