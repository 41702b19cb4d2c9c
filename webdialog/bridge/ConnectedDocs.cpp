#include "ConnectedDocs.h"

#include "DOC_Interface.h"
#include "NamedFailure.h"
#include "ZebDocManager.h"

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
