#include "CurrentCamera.h"

#include "DOC_Control.h"
#include "DOC_Interface.h"
#include "ZebDocManager.h"
#include "ZebHost.h"

DOC_Interface* currentCamera(ZebHost& host) {
    DOC_Interface* doc = host.docManager().getCurrentDoc();
    return doc && doc->isConnected() ? doc : nullptr;
}

PARTITIONNUMBER currentPartition(ZebHost& host) {
    DOC_Interface* doc = currentCamera(host);
    return doc ? doc->control().getCurrentPartition(1) : 0;
}

QString currentPartitionName(ZebHost& host) {
    DOC_Interface* doc = currentCamera(host);
    return doc ? doc->getPartitionName(doc->control().getCurrentPartition(1)) : QString();
}
