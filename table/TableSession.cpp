#include "TableSession.h"

#include "CameraManagement.h"
#include "ConnectedDocs.h"
#include "DOC_Interface.h"
#include "DOC_Lock.h"
#include "DocKeys.h"
#include "DocumentGuard.h"
#include "MemoryEditing.h"
#include "SignalSources.h"
#include "TableState.h"
#include "ZebDocManager.h"
#include "ZebHost.h"

#include <QDebug>

#include <algorithm>

void TableSession::open() {
    m_state.group = QLatin1String(UnreadGroup);
    clearLocks(false);
    clearRecordChecks(m_host);
}

void TableSession::takeAllConnected() {
    if (!m_state.savedRecAllConnected) {
        m_state.savedRecAllConnected = m_host.getPrefBool(RecAllConnectedPref);
    }
    m_host.setPrefBool(RecAllConnectedPref, true);
}

DocList TableSession::connected() const {
    ZebDocManager& documents = m_host.docManager();
    return connectedDocs(documents, documents.getConnectedDocKeys());
}

void TableSession::followConnectedDocs() {
    CameraManagement(m_host, m_state).prepareConnectedDocs(connected());
}

void TableSession::loadDefaultSettings() {
    const DocList docs = connected();
    DocumentGuard guard(m_host, false, false);
    const bool busy = std::any_of(docs.begin(), docs.end(), [](DOC_Interface* doc) { return isArmed(*doc); });
    if (!m_host.isFileMode() && !busy) {
        const DefaultSettings settings = DefaultSettings::read(m_host);
        m_state.groups = settings.groups;
        m_state.sync.frequency = settings.syncFrequency.value_or(m_state.sync.frequency);
        m_state.sync.offered = settings.syncSignals;
        m_state.allowed = settings.allowed;
        m_state.areas = settings.areas;
        connectSignalSources();
    }
    guard.release();
}

void TableSession::connectSignalSources() {
    SignalSources sources(m_host, m_state.sync);
    sources.connectGenerator();
    qInfo() << "loadDefaultSettings"
            << "connectSignalGenerator";
    sources.connectHubs();
    qInfo() << "loadDefaultSettings"
            << "connectSignalDistributors";
}

void TableSession::close() {
    m_host.setPrefInt(QStringLiteral("wren/table/filter"), m_state.filter);
    m_host.setPrefString(QStringLiteral("wren/table/group"), m_state.group);
    if (m_state.savedRecAllConnected) {
        m_host.setPrefBool(RecAllConnectedPref, *m_state.savedRecAllConnected);
        m_state.savedRecAllConnected.reset();
    }
    clearLocks(true);
    clearRecordChecks(m_host);
}

void TableSession::clearLocks(bool recordingToo) {
    for (const DOCKEY key : m_host.docManager().getDocKeys()) {
        DOC_Interface* doc = m_host.docManager().getDocAny(key);
        if (doc == nullptr) {
            continue;
        }
        if (recordingToo || !isArmed(*doc)) {
            doc->lock().setParamLock(false);
        }
    }
}
