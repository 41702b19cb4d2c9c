#include "TableSession.h"

#include "CameraManagement.h"
#include "ConnectedDocs.h"
#include "DOC_Interface.h"
#include "DOC_Lock.h"
#include "DefaultsLoad.h"
#include "DocKeys.h"
#include "GUI_WrenDefaultSettingsDialog.h"
#include "NamedFailure.h"
#include "RecordChecks.h"
#include "SettingsKeys.h"
#include "TableState.h"
#include "ZebDocManager.h"
#include "ZebHost.h"

#include <algorithm>

void TableSession::open(QWidget* window) {
    m_state.group = QLatin1String(UnreadGroup);
    m_state.result.reset();
    m_state.lastSearch.clear();
    m_state.recording.invalidate();
    clearLocks(false);
    m_failures.attempt([this] { RecordChecks(m_host).clear(m_failures); });
    m_failures.attempt([this] { takeAllConnected(); });
    m_failures.attempt([&] { loadDefaults(window); });
    // As one that connects now; a recording that runs is followed.
    m_failures.attempt([this] { CameraManagement(m_host, m_state).prepareConnectedDocs(connected()); });
    m_failures.rethrow();
}

void TableSession::takeAllConnected() {
    if (!m_state.savedRecAllConnected) {
        m_state.savedRecAllConnected = m_host.getPrefBool(RecAllConnectedPref);
    }
    m_host.setPrefBool(RecAllConnectedPref, true);
}

/// What could not be stored is held for the next closing.
void TableSession::giveBackAllConnected() {
    if (m_state.savedRecAllConnected) {
        m_host.setPrefBool(RecAllConnectedPref, *m_state.savedRecAllConnected);
        m_state.savedRecAllConnected.reset();
    }
}

DocList TableSession::connected() {
    ZebDocManager& documents = m_host.docManager();
    return connectedDocs(documents, documents.getConnectedDocKeys(), m_failures);
}

/// Settings that were never accepted are not loaded in live mode; the table has no groups and no limits then.
void TableSession::loadDefaults(QWidget* window) {
    const bool ask = !m_host.getPrefBool(settingskeys::Done) && m_host.isLiveMode();
    if (!ask || (!isAnyArmed() && GUI_WrenDefaultSettingsDialog::run(m_host, window))) {
        DefaultsLoad(m_host, m_state, m_failures).loadAll();
    } else {
        m_state.groups.clear();
        m_state.allowed = {};
        m_state.areas.clear();
        m_state.sync.offered.clear();
    }
}

/// Nobody is kept from a recording by a dialog.
bool TableSession::isAnyArmed() {
    const DocList docs = connected();
    return std::any_of(docs.begin(), docs.end(), [this](DOC_Interface* doc) {
        bool armed = false;
        m_failures.attempt([&] { onCamera(*doc, [&] { armed = isArmed(*doc); }); });
        return armed;
    });
}

void TableSession::close() {
    // A page that has never come has chosen neither.
    if (m_state.group != QLatin1String(UnreadGroup)) {
        m_failures.attempt([this] { m_host.setPrefInt(QStringLiteral("wren/table/filter"), m_state.filter); });
        m_failures.attempt([this] { m_host.setPrefString(QStringLiteral("wren/table/group"), m_state.group); });
    }
    m_failures.attempt([this] { giveBackAllConnected(); });
    clearLocks(true);
    m_failures.attempt([this] { RecordChecks(m_host).clear(m_failures); });
    m_failures.rethrow();
}

void TableSession::clearLocks(bool recordingToo) {
    ZebDocManager& documents = m_host.docManager();
    const auto clear = [recordingToo](DOC_Interface& doc) {
        if (recordingToo || !isArmed(doc)) {
            doc.lock().setParamLock(false);
        }
    };
    m_failures.attempt([&] {
        for (const DOCKEY key : documents.getDocKeys()) {
            if (DOC_Interface* doc = documents.getDocAny(key)) {
                m_failures.attempt([&] { onCamera(*doc, [&] { clear(*doc); }); });
            }
        }
    });
}
