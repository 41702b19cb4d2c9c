#include "RecordChecks.h"

#include "ConnectedDocs.h"
#include "DOC_Frames.h"
#include "DOC_Interface.h"
#include "NamedFailure.h"
#include "ZebDocManager.h"
#include "ZebHost.h"

void RecordChecks::set(const DocKeyList& keys, bool check) {
    if (!m_host.isMemoryMode()) {
        return;
    }
    for (DOC_Interface* doc : connectedDocs(m_host.docManager(), keys)) {
        if (doc->isSelected()) {
            doc->frames().setRecordCheck(check);
        }
    }
}

void RecordChecks::clear(GatheredFailures& failures) {
    ZebDocManager& documents = m_host.docManager();
    for (const DOCKEY key : documents.getDocKeys()) {
        if (DOC_Interface* doc = documents.getDocAny(key)) {
            attemptOn(*doc, failures, [doc] { doc->frames().setRecordCheck(false); });
        }
    }
}

bool RecordChecks::areComplete(GatheredFailures& unread) const {
    ZebDocManager& documents = m_host.docManager();
    bool complete = true;
    for (DOC_Interface* doc : connectedDocs(documents, documents.getConnectedDocKeys(), unread)) {
        attemptOn(*doc, unread, [&] {
            complete = (doc->frames().getFrameCount(0, 0) == 0 || doc->frames().isRecordCheck()) && complete;
        });
    }
    return complete;
}
