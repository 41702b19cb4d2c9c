#include "RUN_SyncingThread.h"

#include "LogFailure.h"
#include "ZebCameraOps.h"
#include "ZebHost.h"

RUN_SyncingThread::RUN_SyncingThread(ZebHost* host, const DocList& docs, DOC_Interface* master,
                                     const SYNC_PARAMS& params)
    : m_host(host), m_docs(docs), m_master(master), m_params(params) {
    setObjectName(QStringLiteral("SYNCIN"));
}

void RUN_SyncingThread::run() {
    Q_EMIT complete(synchronise());
}

bool RUN_SyncingThread::synchronise() {
    try {
        m_host->cameraOps().syncCameras(m_docs, m_master, m_params.lport, m_params.external, m_params.generator,
                                        m_params.input, m_params.frequency, m_params.polarity);
        return true;
    } catch (...) {
        logCurrentFailure();
        return false;
    }
}
