#include "ParameterEditing.h"

#include "DOC_Control.h"
#include "DOC_Interface.h"
#include "DOC_Lock.h"
#include "ZebCameraOps.h"
#include "ZebDocManager.h"
#include "ZebHost.h"

namespace {

const QString HeadAlertPref = QStringLiteral("alert/wren/multiheadlockalert");

}  // namespace

void ParameterEditing::setParamLock(const DocKeyList& keys, bool lock) {
    if (!m_host.isLiveMode()) {
        return;
    }
    for (const DOCKEY key : keys) {
        DOC_Interface* doc = m_host.docManager().getDocAny(key);
        if (doc != nullptr && doc->isConnected() && !doc->control().isLowLightMode()) {
            doc->lock().setParamLock(lock);
        }
    }
}

void ParameterEditing::setFrameRate(const DocKeyList& keys, const QString& val) {
    if (!m_host.isLiveMode() || val.isEmpty()) {
        return;
    }
    DocList docs = editableDocs(keys);
    if (reachesLockedHead(docs)) {
        if (!userAgrees(QStringLiteral("Shooting speed"))) {
            return;
        }
        // Cameras may have gone, or the mode may have changed, while the question stood.
        docs = m_host.isLiveMode() ? editableDocs(keys) : DocList();
    }
    if (!docs.isEmpty()) {
        m_host.cameraOps().setRecordRate(docs, val.toUInt());
    }
}

DocList ParameterEditing::editableDocs(const DocKeyList& keys) const {
    DocList docs;
    for (const DOCKEY key : keys) {
        DOC_Interface* doc = m_host.docManager().getDocAny(key);
        if (doc != nullptr && doc->isConnected() && !doc->lock().isParamLocked()) {
            docs.append(doc);
        }
    }
    return docs;
}

/// Each document is asked, and the last one decides: for this parameter the question is due only where the end of
/// the list shares its device.
bool ParameterEditing::reachesLockedHead(const DocList& docs) const {
    if (!m_host.getPrefBool(HeadAlertPref)) {
        return false;
    }
    bool reaches = false;
    for (DOC_Interface* doc : docs) {
        reaches = m_host.docManager().sharesDeviceWithLockedHead(doc, false, false);
    }
    return reaches;
}

bool ParameterEditing::userAgrees(const QString& parameter) const {
    const QString question = m_host.translate(
        QStringLiteral("%1 of locked heads will be changed at the same time.<br>Do you want to continue?"));
    return m_host.confirmWithDontShowAgain(question.arg(m_host.translate(parameter)), HeadAlertPref,
                                           m_host.getMainWindow(), {});
}
