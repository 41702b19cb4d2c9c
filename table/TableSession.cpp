#include "TableSession.h"

#include "CameraManagement.h"
#include "DOC_Frames.h"
#include "DOC_Interface.h"
#include "DOC_Lock.h"
#include "DocKeys.h"
#include "TableState.h"
#include "ZebDocManager.h"
#include "ZebHost.h"

namespace {

const QString RecAllPref = QStringLiteral("recording/RecAllConnectedCamera");

}  // namespace

void TableSession::open() {
    m_state.group = QLatin1String(UnreadGroup);
    clearLocks(false);
    clearRecordChecks();
    if (!m_state.savedRecAllConnected) {
        m_state.savedRecAllConnected = m_host.getPrefBool(RecAllPref);
    }
    m_host.setPrefBool(RecAllPref, true);
    ZebDocManager& documents = m_host.docManager();
    CameraManagement(m_host, m_state).prepareConnectedDocs(connectedDocs(documents, documents.getConnectedDocKeys()));
}

void TableSession::close() {
    m_host.setPrefInt(QStringLiteral("wren/table/filter"), m_state.filter);
    m_host.setPrefString(QStringLiteral("wren/table/group"), m_state.group);
    if (m_state.savedRecAllConnected) {
        m_host.setPrefBool(RecAllPref, *m_state.savedRecAllConnected);
        m_state.savedRecAllConnected.reset();
    }
    clearLocks(true);
    clearRecordChecks();
}

void TableSession::clearLocks(bool recordingToo) {
    for (const DOCKEY key : m_host.docManager().getDocKeys()) {
        DOC_Interface* doc = m_host.docManager().getDocAny(key);
        if (doc == nullptr) {
            continue;
        }
        const int state = doc->lock().getRecordState();
        if (recordingToo || (state != zeb::RecordReady && state != zeb::RecordRecording)) {
            doc->lock().setParamLock(false);
        }
    }
}

void TableSession::clearRecordChecks() {
    for (const DOCKEY key : m_host.docManager().getDocKeys()) {
        if (DOC_Interface* doc = m_host.docManager().getDocAny(key)) {
            doc->frames().setRecordCheck(false);
        }
    }
}
