#include "CameraManagement.h"

#include "ChangeableDocs.h"
#include "ConnectedDocs.h"
#include "DOC_Control.h"
#include "DOC_Image.h"
#include "DOC_Lock.h"
#include "DefaultsLoad.h"
#include "DocKeys.h"
#include "LogFailure.h"
#include "TableState.h"
#include "TextKey.h"
#include "ZebCameraOps.h"

namespace {

const QString SearchAddressPref = QStringLiteral("cameraconnection/SearchIP");

/// Those of `keys` that are not in `others`.
DocKeyList keysBeside(const DocKeyList& others, const DocKeyList& keys) {
    DocKeyList beside;
    for (const DOCKEY key : keys) {
        if (!others.contains(key)) {
            beside << key;
        }
    }
    return beside;
}

}  // namespace

QString CameraManagement::getSearchAddress() const {
    return m_host.isLiveMode() ? m_host.getPrefString(SearchAddressPref) : QString();
}

/// A search has ended when its call returns, so that the cameras before and after it can be compared.
template <typename Search>
void CameraManagement::search(const QString& where, Search&& run) {
    if (!m_host.isLiveMode()) {
        return;
    }
    ZebDocManager& documents = m_host.docManager();
    const DocKeyList before = documents.getLiveDocKeys(0, 0);
    m_state.lastSearch.clear();
    run();
    const DocKeyList listed = documents.getLiveDocKeys(0, 0);
    const DocKeyList added = keysBeside(before, listed);
    logFailure([&] { noteSearch(where, added, listed.size()); });
    GatheredFailures failures;
    join(added, failures);
    failures.rethrow();
}

/// Each that was found is a line of the result.
void CameraManagement::noteSearch(const QString& where, const DocKeyList& added, int listed) {
    QVector<ActionResult::Row> rows;
    for (DOC_Interface* doc : docsOf(m_host.docManager(), added)) {
        ActionResult::Row row{doc->getKey(), {}, {}, {}, QStringLiteral("set"), {}};
        logFailure([&] { row.name = doc->control().getCameraName(1); });
        logFailure([&] { row.got = doc->control().getAddress(1); });
        rows.append(row);
    }
    m_state.lastSearch = m_host.translate(TextKey("%1: new %2, in the list %3"))
                             .arg(where, QString::number(added.size()), QString::number(listed));
    if (!rows.isEmpty()) {
        m_state.result = ActionResult(QStringLiteral("search"), rows);
    }
}

void CameraManagement::searchCamera(const QString& address) {
    if (address.isEmpty()) {
        return;
    }
    search(address.section(QLatin1Char('.'), 0, 2) % QLatin1String(".xxx"), [&] {
        m_host.setPref(SearchAddressPref, address);
        m_host.cameraOps().searchCamera(address);
    });
}

void CameraManagement::discover() {
    search(m_host.translate(TextKey("Search all devices")), [this] { m_host.cameraOps().discoverCameras(); });
}

void CameraManagement::update() {
    search(m_host.translate(TextKey("Update")), [this] { m_host.cameraOps().updateCameras(); });
}

void CameraManagement::deleteAll() {
    if (m_host.isLiveMode() && m_host.confirmModal(TextKey("Delete all Cameras?"), nullptr, {}) &&
        m_host.isLiveMode()) {
        m_host.docManager().deleteAllDocs(0, 0);
        m_state.result.reset();
        m_state.lastSearch.clear();
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
    GatheredFailures failures;
    forEachConnected(m_host, keys, failures, [&](DOC_Interface& doc) {
        unlocked += doc.lock().isParamLocked() ? 0 : 1;
        anyMultiHead = anyMultiHead || doc.control().isMultiHead();
    });
    failures.log();
    return disconnectQuestionFor(anyMultiHead, unlocked);
}

QString CameraManagement::disconnectQuestionFor(bool anyMultiHead, int unlocked) {
    if (anyMultiHead) {
        return TextKey("Heads connected to the same device are also disconnected. Is it OK?");
    }
    return unlocked < 2 ? TextKey("Disconnect this device. Is it OK?") : TextKey("Bulk disconnect devices. Is it OK?");
}

void CameraManagement::connect(const DocKeyList& keys, bool connect, bool force) {
    if (!m_host.isLiveMode() && !force) {
        return;
    }
    ZebDocManager& documents = m_host.docManager();
    GatheredFailures failures;
    const DocKeyList affected = connect ? keysToConnect(keys, failures) : keysToDisconnect(keys, force, failures);
    if (!affected.isEmpty() && connect) {
        const DocKeyList before = documents.getConnectedDocKeys(0);
        failures.attempt([&] { documents.connectDocs(affected); });
        // Heads come along with others of their device.
        joinConnected(before, failures);
    } else if (!affected.isEmpty()) {
        failures.attempt([&] { documents.disconnectDocs(affected); });
    }
    failures.rethrow();
}

bool CameraManagement::select(const DocKeyList& keys, bool select) {
    if (m_host.isFileMode() || m_host.isApplicationClosing()) {
        return false;
    }
    ZebDocManager& documents = m_host.docManager();
    GatheredFailures failures;
    forEachConnected(m_host, keys, failures, [&](DOC_Interface& doc) {
        if (!mayBeSelected(doc)) {
            return;
        }
        const DOCKEY key = doc.getKey();
        if (select != doc.isSelected()) {
            select ? documents.selectDoc(key) : documents.deselectDoc(key);
        }
        m_state.batchDocKey = doc.isSelected() ? key : zeb::NoDocKey;
        m_state.unreadBatchDocKey = zeb::NoDocKey;
    });
    failures.rethrow();
    return true;
}

template <typename Change>
void CameraManagement::change(const DocKeyList& keys, Change&& change) {
    if (!m_host.isFileMode()) {
        GatheredFailures failures;
        forEachConnected(m_host, keys, failures, change);
        failures.rethrow();
    }
}

void CameraManagement::setCameraName(const DocKeyList& keys, const QString& name) {
    const bool live = m_host.isLiveMode();
    change(keys, [&](DOC_Interface& doc) {
        if (!live || !doc.lock().isParamLocked()) {
            doc.control().setCameraName(name);
        }
    });
}

void CameraManagement::setComment(const DocKeyList& keys, const QString& comment) {
    const QString text = QString(comment).replace(QLatin1Char('\n'), QLatin1String(zeb::CommentSeparator));
    change(keys, [&](DOC_Interface& doc) {
        if (!doc.lock().isParamLocked()) {
            doc.image().setComment(text);
        }
    });
}

void CameraManagement::editDoc(DOCKEY key) {
    m_host.docManager().editDoc(key);
}

/// Those of `keys` that are connected get the default settings; a recording that they are in is followed.
void CameraManagement::join(const DocKeyList& keys, GatheredFailures& failures) {
    if (!keys.isEmpty()) {
        const DocList docs = docsOf(m_host.docManager(), keys);
        failures.attempt([&] { prepareConnectedDocs(docs); });
        DefaultsLoad(m_host, m_state, failures).loadOnto(keys);
    }
}

void CameraManagement::joinConnected(const DocKeyList& before, GatheredFailures& failures) {
    join(keysBeside(before, m_host.docManager().getConnectedDocKeys(0)), failures);
}

void CameraManagement::prepareConnectedDocs(const DocList& docs) {
    if (docs.isEmpty() || !m_host.isLiveMode()) {
        return;
    }
    const bool lockColumn = m_host.getPrefBool(QStringLiteral("wren/display/lock"));
    GatheredFailures failures;
    for (DOC_Interface* doc : docs) {
        attemptOn(*doc, failures, [&] {
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

DocKeyList CameraManagement::keysToConnect(const DocKeyList& keys, GatheredFailures& failures) const {
    DocKeyList connecting;
    for (const DOCKEY key : keys) {
        if (DOC_Interface* doc = m_host.docManager().getDocAny(key)) {
            attemptOn(*doc, failures, [&] { connecting += doc->isConnected() ? DocKeyList() : DocKeyList{key}; });
        }
    }
    return connecting;
}

DocKeyList CameraManagement::keysToDisconnect(const DocKeyList& keys, bool force, GatheredFailures& failures) const {
    DocKeyList disconnecting;
    forEachConnected(m_host, keys, failures, [&](DOC_Interface& doc) {
        if (force || !doc.lock().isParamLocked()) {
            disconnecting.append(doc.getKey());
        }
    });
    return disconnecting;
}
