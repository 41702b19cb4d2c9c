#include "TableSession.h"

#include "CameraManagement.h"
#include "ConnectedDocs.h"
#include "DOC_Interface.h"
#include "DOC_Lock.h"
#include "DocKeys.h"
#include "DocumentGuard.h"
#include "GatheredFailures.h"
#include "LogFailure.h"
#include "MemoryEditing.h"
#include "SignalSources.h"
#include "TableState.h"
#include "ZebDocManager.h"
#include "ZebHost.h"

#include <QDebug>

#include <algorithm>
#include <utility>

void TableSession::open() {
    m_state.group = QLatin1String(UnreadGroup);
    GatheredFailures failures;
    clearLocks(false, failures);
    clearRecordChecks(m_host, failures);
    failures.rethrow();
}

void TableSession::takeAllConnected() {
    if (!m_state.savedRecAllConnected) {
        m_state.savedRecAllConnected = m_host.getPrefBool(RecAllConnectedPref);
    }
    m_host.setPrefBool(RecAllConnectedPref, true);
}

/// One that does not tell whether it is connected says so in its row.
DocList TableSession::connected() const {
    ZebDocManager& documents = m_host.docManager();
    GatheredFailures unread;
    return connectedDocs(documents, documents.getConnectedDocKeys(), unread);
}

void TableSession::followConnectedDocs() {
    CameraManagement(m_host, m_state).prepareConnectedDocs(connected());
}

void TableSession::loadDefaultSettings() {
    const DocList docs = connected();
    DocumentGuard guard(m_host, false, false);
    const bool busy = std::any_of(docs.begin(), docs.end(), [](DOC_Interface* doc) {
        bool armed = false;
        logFailure([&] { armed = isArmed(*doc); });
        return armed;
    });
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
    GatheredFailures failures;
    failures.attempt([this] { m_host.setPrefInt(QStringLiteral("wren/table/filter"), m_state.filter); });
    failures.attempt([this] { m_host.setPrefString(QStringLiteral("wren/table/group"), m_state.group); });
    if (const auto saved = std::exchange(m_state.savedRecAllConnected, std::nullopt)) {
        failures.attempt([this, saved] { m_host.setPrefBool(RecAllConnectedPref, *saved); });
    }
    clearLocks(true, failures);
    clearRecordChecks(m_host, failures);
    failures.rethrow();
}

void TableSession::clearLocks(bool recordingToo, GatheredFailures& failures) {
    for (const DOCKEY key : m_host.docManager().getDocKeys()) {
        DOC_Interface* doc = m_host.docManager().getDocAny(key);
        if (doc == nullptr) {
            continue;
        }
        failures.attempt([&] {
            if (recordingToo || !isArmed(*doc)) {
                doc->lock().setParamLock(false);
            }
        });
    }
}
