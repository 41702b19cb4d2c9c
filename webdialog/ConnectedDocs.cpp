#include "ConnectedDocs.h"

#include "DOC_Interface.h"
#include "GatheredFailures.h"
#include "ZebDocManager.h"

DocList connectedDocs(ZebDocManager& documents, const DocKeyList& keys) {
    GatheredFailures failures;
    const DocList docs = connectedDocs(documents, keys, failures);
    failures.rethrow();
    return docs;
}

DocList connectedDocs(ZebDocManager& documents, const DocKeyList& keys, GatheredFailures& failures) {
    DocList docs;
    for (const DOCKEY key : keys) {
        failures.attempt([&] {
            DOC_Interface* doc = documents.getDoc(key, 1);
            if (doc != nullptr && doc->isConnected()) {
                docs.append(doc);
            }
        });
    }
    return docs;
}
