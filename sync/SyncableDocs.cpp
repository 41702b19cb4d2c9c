#include "SyncableDocs.h"

#include "DOC_Control.h"
#include "DOC_Interface.h"

#include <algorithm>

DocList withoutDummies(const DocList& docs) {
    DocList cameras;
    std::copy_if(docs.begin(), docs.end(), std::back_inserter(cameras),
                 [](DOC_Interface* doc) { return doc->isConnected() && !doc->control().isDummy(); });
    return cameras;
}
