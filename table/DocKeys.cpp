#include "DocKeys.h"

#include "DOC_Interface.h"
#include "DOC_Lock.h"
#include "ZebDocManager.h"

DocKeyList toDocKeys(const QVariantList& keys) {
    DocKeyList docKeys;
    for (const QVariant& key : keys) {
        bool ok = false;
        const DOCKEY docKey = key.toUInt(&ok);
        if (ok && docKey != zeb::NoDocKey) {
            docKeys.append(docKey);
        }
    }
    return docKeys;
}

QString keyText(const QVariantList& keys) {
    QStringList texts;
    for (const QVariant& key : keys) {
        texts.append(key.toString());
    }
    return texts.join(QLatin1Char(','));
}

DocList connectedDocs(ZebDocManager& documents, const DocKeyList& keys) {
    DocList docs;
    for (const DOCKEY key : keys) {
        DOC_Interface* doc = documents.getDoc(key, 1);
        if (doc != nullptr && doc->isConnected()) {
            docs.append(doc);
        }
    }
    return docs;
}

bool isArmed(DOC_Interface& doc) {
    const int state = doc.lock().getRecordState();
    return state == zeb::RecordReady || state == zeb::RecordRecording;
}
