#include "CustomInfoRoundTrip.h"

#include "CustomInfoReader.h"
#include "CustomInfoWriter.h"

#include <QDebug>

namespace {

/// Without what XML has no form for, and nothing where nothing but blanks is left.
QString cleaned(const QString& text) {
    QString kept;
    for (int i = 0; i < text.size(); ++i) {
        const bool isPair = text[i].isHighSurrogate() && i + 1 < text.size() && text[i + 1].isLowSurrogate();
        const ushort code = text[i].unicode();
        if (isPair) {
            kept += text.midRef(i++, 2);
        } else if (!text[i].isSurrogate() && code < 0xFFFE &&
                   (code >= ' ' || QByteArray("\t\n\r").contains(char(code)))) {
            kept += text[i];
        }
    }
    return kept.trimmed().isEmpty() ? QString() : kept;
}

QList<QVariantMap> asRead(const QList<QVariantMap>& items, const CustomInfoDialect& dialect) {
    QList<QVariantMap> read;
    for (const QVariantMap& item : items) {
        const bool shown = item.value(QLatin1String(dialect.shownKey)).toBool();
        QVariantMap expected{{QLatin1String(dialect.shownKey), shown}};
        for (const char* field : {"name", "value", "unit"}) {
            expected.insert(QLatin1String(field), cleaned(item.value(QLatin1String(field)).toString()));
        }
        if (dialect.readsFileNameFlag) {
            expected.insert(QStringLiteral("usefilename"), shown);
        }
        read.append(expected);
    }
    return read;
}

}  // namespace

QString faultOfReading(const QByteArray& bytes) {
    for (const CustomInfoDialect& dialect : {TableDialect, DialogDialect}) {
        const CustomInfoReading reading = readCustomInfo(bytes, dialect);
        if (reading.items.isEmpty() == reading.reason.isEmpty()) {
            return QStringLiteral("neither items nor a reason, or both: ") + reading.reason;
        }
        for (const QVariantMap& item : reading.items) {
            if (!item.contains(QStringLiteral("name"))) {
                return QStringLiteral("an item without a name");
            }
        }
        const QString fault = faultOfWriting(reading.items, dialect);
        if (!fault.isEmpty()) {
            return fault;
        }
    }
    return {};
}

QString faultOfWriting(const QList<QVariantMap>& items, const CustomInfoDialect& dialect) {
    const CustomInfoWriting writing = writeCustomInfo(items, QStringLiteral("1.0"), dialect);
    if (writing.bytes.isEmpty() == writing.reason.isEmpty()) {
        return QStringLiteral("neither a file nor a reason, or both: ") + writing.reason;
    }
    if (!writing.reason.isEmpty() || items.isEmpty()) {
        return {};
    }
    const CustomInfoReading reading = readCustomInfo(writing.bytes, dialect);
    const QList<QVariantMap> expected = asRead(items, dialect);
    if (reading.items == expected) {
        return {};
    }
    QString fault;
    QDebug(&fault) << "read" << reading.items << reading.reason << "for" << expected;
    return fault;
}
