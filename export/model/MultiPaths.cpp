#include "MultiPaths.h"

#include "ConnectedDocs.h"
#include "DOC_Control.h"
#include "DOC_Interface.h"
#include "PairList.h"
#include "ZebDocManager.h"
#include "ZebHost.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QSet>

namespace {

QString compact(const QJsonArray& array) {
    return QString::fromUtf8(QJsonDocument(array).toJson(QJsonDocument::Compact));
}

QList<QPair<QString, QString>> pairsOf(const ZebHost& host, const char* key) {
    return readPairs(host.getPrefString(QLatin1String(key)));
}

}  // namespace

QString multiPaths(const ZebHost& host) {
    QJsonArray records;
    for (const auto& [name, path] : pairsOf(host, "export/multipathlist")) {
        records.append(QJsonObject{{QStringLiteral("recid"), records.size() + 1},
                                   {QStringLiteral("name"), name},
                                   {QStringLiteral("path"), path}});
    }
    return compact(records);
}

QString multiPathDevices(ZebHost& host) {
    const auto pairs = pairsOf(host, "export/multipathlist");
    const auto chosen = pairsOf(host, "export/multipathdevicelist");
    QJsonArray paths;
    for (const auto& [key, path] : pairs) {
        paths.append(QJsonObject{{QStringLiteral("key"), key}, {QStringLiteral("val"), path}});
    }
    QJsonArray records;
    QSet<QString> seen;
    for (DOC_Interface* doc : docsOf(host.docManager(), host.docManager().getDocKeys(1))) {
        const QString address = doc->control().getAddress(1);
        if (address.isEmpty() || seen.contains(address)) {
            continue;
        }
        seen.insert(address);
        QJsonObject record{{QStringLiteral("recid"), records.size() + 1},
                           {QStringLiteral("device"), address},
                           {QStringLiteral("paths"), paths}};
        if (!pairs.isEmpty()) {
            const QString key = valueOf(chosen, address).value_or(pairs.first().first);
            record.insert(QStringLiteral("pathselector"), key);
            record.insert(QStringLiteral("path"), valueOf(pairs, key).value_or(QString()));
        }
        records.append(record);
    }
    return compact(records);
}
