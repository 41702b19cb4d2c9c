#include "ConnectedDocs.h"

#include "DOC_Interface.h"
#include "NamedFailure.h"
#include "ZebDocManager.h"

#include <QSet>

DocKeyList keysOf(const DocList& docs) {
    DocKeyList keys;
    for (const DOC_Interface* doc : docs) {
        keys.append(doc->getKey());
    }
    return keys;
}

DocList docsOf(ZebDocManager& documents, const DocKeyList& keys) {
    DocList docs;
    for (const DOCKEY key : keys) {
        if (DOC_Interface* doc = documents.getDoc(key, 1)) {
            docs.append(doc);
        }
    }
    return docs;
}

DocList connectedDocs(ZebDocManager& documents, const DocKeyList& keys) {
    GatheredFailures failures;
    const DocList docs = connectedDocs(documents, keys, failures);
    failures.rethrow();
    return docs;
}

DocList connectedDocs(ZebDocManager& documents, const DocKeyList& keys, GatheredFailures& failures) {
    DocList docs;
    for (const DOCKEY key : keys) {
        DOC_Interface* doc = documents.getDoc(key, 1);
        bool connected = false;
        if (doc != nullptr) {
            attemptOn(*doc, failures, [&] { connected = doc->isConnected(); });
        }
        if (connected) {
            docs.append(doc);
        }
    }
    return docs;
}

DocList connectedDevices(ZebDocManager& documents, const DocKeyList& keys, GatheredFailures& failures) {
    DocList firsts;
    QSet<const DOC_Interface*> devices;
    for (DOC_Interface* doc : connectedDocs(documents, keys, failures)) {
        attemptOn(*doc, failures, [&] {
            const DOC_Interface* device = &deviceOf(*doc);
            if (!devices.contains(device)) {
                devices.insert(device);
                firsts.append(doc);
            }
        });
    }
    return firsts;
}

DOC_Interface& deviceOf(DOC_Interface& doc) {
    DOC_Interface* parent = doc.getParentDoc();
    return parent != nullptr ? *parent : doc;
}
