#include "PLG_Common.h"

#include "DocumentGuard.h"
#include "ZebAppStatus.h"
#include "ZebDocManager.h"
#include "ZebHost.h"
#include "ZebLiveLoop.h"
#include "ZebUndo.h"

#include <optional>
#include <utility>

void PLG_Common::activate() {
    selectToolOnActivate();
    if (m_buttonType != DialogButton && needsLivePause()) {
        restartLiveAfterTool();
    }
}

void PLG_Common::selectToolOnActivate() {
    ZebDocManager& docs = m_host->docManager();
    const bool multilock = m_name == QLatin1String("t_multilock");
    const bool quick = getQuickKind() == 1;
    if (!multilock && m_toolKind != 0) {
        docs.setQuickTool(m_name, true);
    } else if (!multilock && isToolActive()) {
        if (quick) {
            docs.setActiveQuickTool(QString());
        }
        docs.setQuickTool(m_name, quick);
    }

    if (isToolActive()) {
        if (!selectsDocuments()) {
            return;
        }
        if (m_selectKind == 0 || m_selectKind == 1) {
            docs.toolSelectAll(m_name, m_selectKind == 0, true);
        }
        m_toolPending = true;
    } else if (!multilock && (m_toolKind == 1 || m_toolKind == 4)) {
        docs.toolSelect(m_name, true);
    }
}

void PLG_Common::deactivate() {
    clearPanelWidget();
    if (isToolActive()) {
        closeToolPanel();
    } else if (m_name != QLatin1String("t_multilock") && m_toolKind == 1) {
        m_host->docManager().toolSelect(m_name, false);
    }
}

void PLG_Common::closeToolPanel() {
    setRunning(false);
    if (getAttributeL()) {
        m_host->appStatus().closePanel();
    } else {
        m_host->appStatus().closeAuxiliaryPanel();
    }
}

void PLG_Common::endTool() {
    if (isToolActive()) {
        clearPanelWidget();
        m_host->undo().clear();
        if (selectsDocuments() && std::exchange(m_toolPending, false)) {
            m_host->docManager().toolEnd(m_name);
        }
    }
    if (needsLivePause()) {
        restartLiveAfterEnd();
    }
}

void PLG_Common::confirmTool() {
    acceptTool();
}

void PLG_Common::applyTool() {
    acceptTool();
}

void PLG_Common::acceptTool() {
    if (!isToolActive()) {
        return;
    }
    if (selectsDocuments()) {
        m_host->docManager().toolBegin(1, m_name);
        m_toolPending = false;
    }
    closeToolPanel();
}

void PLG_Common::cancelTool() {
    if (!isToolActive()) {
        return;
    }
    if (selectsDocuments()) {
        m_host->docManager().toolEnd(m_name);
        m_toolPending = false;
    }
    closeToolPanel();
}

void PLG_Common::resetTool() {
    if (!isToolActive()) {
        return;
    }
    setRunning(false);
    m_host->undo().clear();
}

void PLG_Common::resetToolGuarded(bool guarded) {
    if (!isToolActive()) {
        return;
    }
    std::optional<DocumentGuard> guard;
    if (guarded) {
        guard.emplace(*m_host);
    }
    resetTool();
    if (guard) {
        guard->release();
    }
}

void PLG_Common::previewTool() {
    if (isToolActive()) {
        m_host->docManager().toolApply(m_name);
    }
}

void PLG_Common::previewToolGuarded(bool guarded) {
    if (!isToolActive()) {
        return;
    }
    std::optional<DocumentGuard> guard;
    if (guarded) {
        guard.emplace(*m_host);
    }
    previewTool();
    if (guard) {
        guard->release();
    }
}

void PLG_Common::repeatTool() {
    if (isToolActive() && getQuickKind() == 1) {
        m_host->docManager().setActiveQuickTool(m_name);
    }
}

void PLG_Common::restartLiveAfterTool() {
    DocumentGuard guard(*m_host);
    m_host->liveLoop().restartLiveAfterTool(0);
    guard.release();
}

void PLG_Common::restartLiveAfterEnd() {
    DocumentGuard guard(*m_host);
    m_host->liveLoop().restartLiveAfterEnd(0);
    guard.release();
}

QString PLG_Common::getConfirmText() const {
    return QStringLiteral("Do you want to accept?");
}
