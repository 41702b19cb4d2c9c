#include "DocKeys.h"

#include "DOC_Interface.h"
#include "DOC_Lock.h"

DocKeyList toDocKeys(const QVariantList& keys) {
    DocKeyList docKeys;
    for (const QVariant& key : keys) {
        bool ok = false;
        // Read wide: the narrow reading cuts a number that is too large down to somebody's key.
        const qulonglong number = key.toULongLong(&ok);
        if (ok && number < zeb::NoDocKey) {
            docKeys.append(DOCKEY(number));
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

bool isArmed(DOC_Interface& doc) {
    const int state = doc.lock().getRecordState();
    return state == zeb::RecordReady || state == zeb::RecordRecording;
}
