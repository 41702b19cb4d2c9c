#include "ConnectedDocs.h"

#include "DOC_Interface.h"
#include "ZebDocManager.h"

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
