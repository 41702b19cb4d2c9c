#include "CameraManagement.h"

#include "ConnectedDocs.h"
#include "DOC_Control.h"
#include "DOC_Image.h"
#include "DOC_Interface.h"
#include "DOC_Lock.h"
#include "DocKeys.h"
#include "GatheredFailures.h"
#include "LogFailure.h"
#include "TableState.h"
#include "ZebCameraOps.h"
#include "ZebDocManager.h"
#include "ZebHost.h"

namespace {

const QString SearchAddressPref = QStringLiteral("cameraconnection/SearchIP");

}  // namespace

QString CameraManagement::getSearchAddress() const {
    return m_host.isLiveMode() ? m_host.getPrefString(SearchAddressPref) : QString();
}

/// A search has ended when its call returns, so that the cameras before and after it can be compared.
template <typename Search>
void CameraManagement::search(Search&& run) {
    if (!m_host.isLiveMode()) {
        return;
    }
    ZebDocManager& documents = m_host.docManager();
    const DocKeyList before = documents.getLiveDocKeys(0, 0);
    run();
    DocList found;
    for (const DOCKEY key : documents.getLiveDocKeys(0, 0)) {
        DOC_Interface* doc = before.contains(key) ? nullptr : documents.getDoc(key, 1);
        if (doc != nullptr) {
            found.append(doc);
        }
    }
    prepareConnectedDocs(found);
}

void CameraManagement::searchCamera(const QString& address) {
    if (address.isEmpty()) {
        return;
    }
    search([&] {
        m_host.setPref(SearchAddressPref, address);
        m_host.cameraOps().searchCamera(address);
    });
}

void CameraManagement::discover() {
    search([this] { m_host.cameraOps().discoverCameras(); });
}

void CameraManagement::update() {
    search([this] { m_host.cameraOps().updateCameras(); });
}

void CameraManagement::deleteAll() {
    if (m_host.isLiveMode() && m_host.confirmModal(QStringLiteral("Delete all Cameras?"), nullptr, {}) &&
        m_host.isLiveMode()) {
        m_host.docManager().deleteAllDocs(0, 0);
    }
}

bool CameraManagement::confirmDisconnect(const DocKeyList& keys) const {
    bool agreed = false;
    logFailure([&] {
        agreed = m_host.isLiveMode() && m_host.confirmModal(m_host.translate(disconnectQuestion(keys)), nullptr, {});
    });
    return agreed;
}

QString CameraManagement::disconnectQuestion(const DocKeyList& keys) const {
    int unlocked = 0;
    bool anyMultiHead = false;
    for (const DOCKEY key : keys) {
        DOC_Interface* doc = m_host.docManager().getDocAny(key);
        if (doc == nullptr || !doc->isConnected()) {
            continue;
        }
        unlocked += doc->lock().isParamLocked() ? 0 : 1;
        anyMultiHead = anyMultiHead || doc->control().isMultiHead();
    }
    return disconnectQuestionFor(anyMultiHead, unlocked);
}

QString CameraManagement::disconnectQuestionFor(bool anyMultiHead, int unlocked) {
    if (anyMultiHead) {
        return QStringLiteral("Heads connected to the same device are also disconnected. Is it OK?");
    }
    return unlocked < 2 ? QStringLiteral("Disconnect this device. Is it OK?")
                        : QStringLiteral("Bulk disconnect devices. Is it OK?");
}

void CameraManagement::connect(const DocKeyList& keys, bool connect, bool force) {
    if (!m_host.isLiveMode() && !force) {
        return;
    }
    ZebDocManager& documents = m_host.docManager();
    const DocKeyList affected = connect ? keysToConnect(keys) : keysToDisconnect(keys, force);
    if (affected.isEmpty()) {
        return;
    }
    if (connect) {
        documents.connectDocs(affected);
        prepareConnectedDocs(connectedDocs(documents, affected));
    } else {
        documents.disconnectDocs(affected);
    }
}

bool CameraManagement::select(const DocKeyList& keys, bool select) {
    if (m_host.isFileMode() || m_host.isApplicationClosing()) {
        return false;
    }
    ZebDocManager& documents = m_host.docManager();
    for (const DOCKEY key : keys) {
        DOC_Interface* doc = documents.getDocAny(key);
        if (doc == nullptr || !doc->isConnected() || !mayBeSelected(*doc)) {
            continue;
        }
        if (select != doc->isSelected()) {
            select ? documents.selectDoc(key) : documents.deselectDoc(key);
        }
        m_state.batchDocKey = doc->isSelected() ? key : zeb::NoDocKey;
        m_state.unreadBatchDocKey = zeb::NoDocKey;
    }
    return true;
}

template <typename Change>
void CameraManagement::forEachConnected(const DocKeyList& keys, Change&& change) {
    if (m_host.isFileMode()) {
        return;
    }
    for (const DOCKEY key : keys) {
        DOC_Interface* doc = m_host.docManager().getDocAny(key);
        if (doc != nullptr && doc->isConnected()) {
            change(*doc);
        }
    }
}

void CameraManagement::setCameraName(const DocKeyList& keys, const QString& name) {
    const bool live = m_host.isLiveMode();
    forEachConnected(keys, [&](DOC_Interface& doc) {
        if (!live || !doc.lock().isParamLocked()) {
            doc.control().setCameraName(name);
        }
    });
}

void CameraManagement::setComment(const DocKeyList& keys, const QString& comment) {
    const QString text = QString(comment).replace(QLatin1Char('\n'), QLatin1String(zeb::CommentSeparator));
    forEachConnected(keys, [&](DOC_Interface& doc) {
        if (!doc.lock().isParamLocked()) {
            doc.image().setComment(text);
        }
    });
}

void CameraManagement::editDoc(DOCKEY key) {
    m_host.docManager().editDoc(key);
}

void CameraManagement::prepareConnectedDocs(const DocList& docs) {
    if (docs.isEmpty() || !m_host.isLiveMode()) {
        return;
    }
    const bool lockColumn = m_host.getPrefBool(QStringLiteral("wren/display/lock"));
    GatheredFailures failures;
    for (DOC_Interface* doc : docs) {
        failures.attempt([&] {
            if (!doc->isConnected() || !isArmed(*doc)) {
                return;
            }
            m_state.recordRunning = true;
            if (lockColumn && !doc->lock().isParamLocked()) {
                doc->lock().setParamLock(true);
            }
        });
    }
    failures.rethrow();
}

bool CameraManagement::mayBeSelected(DOC_Interface& doc) const {
    return m_host.isLiveMode() ? doc.lock().getRecordState() == zeb::RecordLive : m_host.isMemoryMode();
}

DocKeyList CameraManagement::keysToConnect(const DocKeyList& keys) const {
    DocKeyList connecting;
    for (const DOCKEY key : keys) {
        const DOC_Interface* doc = m_host.docManager().getDocAny(key);
        if (doc != nullptr && !doc->isConnected()) {
            connecting.append(key);
        }
    }
    return connecting;
}

DocKeyList CameraManagement::keysToDisconnect(const DocKeyList& keys, bool force) const {
    DocKeyList disconnecting;
    for (const DOCKEY key : keys) {
        DOC_Interface* doc = m_host.docManager().getDocAny(key);
        if (doc != nullptr && doc->isConnected() && (force || !doc->lock().isParamLocked())) {
            disconnecting.append(key);
        }
    }
    return disconnecting;
}
