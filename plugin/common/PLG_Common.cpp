#include "PLG_Common.h"

#include "DOC_Image.h"
#include "DOC_Interface.h"
#include "DeterScope.h"
#include "GUI_ModelessPatternDialog.h"
#include "JS_Mediator_Dialog.h"
#include "LogFailure.h"
#include "TextResource.h"
#include "ZebAppStatus.h"
#include "ZebDocManager.h"
#include "ZebHost.h"
#include "ZebPageBridge.h"

#include <QDebug>
#include <QScopeGuard>

#include <utility>

namespace {

/// Tools with a state of their own, which no document has.
bool isApplicationTool(const QString& name) {
    return name == QLatin1String("t_multilock") || name == QLatin1String("t_zoomfit");
}

}  // namespace

PLG_Common::PLG_Common() = default;

PLG_Common::~PLG_Common() {
    PLG_Common::resetCursor();
    m_panelBridge.reset();
    // What the host asks while the dialog goes finds no dialog any more.
    if (auto* dialog = std::exchange(m_dialog, nullptr)) {
        dialog->discard();
    }
}

QString PLG_Common::getPageHtml() {
    const QString path = QStringLiteral(":/") % m_name % QStringLiteral(".html");
    const std::optional<QString> text = readTextResource(path);
    if (!text) {
        qWarning() << "Not Found" << path;
    }
    return text.value_or(QString());
}

void PLG_Common::updatePanel() {
    if (m_panelWidget && m_panelWidget->isActiveWindow()) {
        m_panelWidget->update();
    }
    if (m_panelBridge) {
        m_panelBridge->raiseUpdate();
    }
}

// Availability and the button

void PLG_Common::setOptionForMode(bool on) {
    m_optionByMode[m_host->isFileMode()] = on;
}

bool PLG_Common::getOptionForMode() const {
    return m_optionByMode[m_host->isFileMode()];
}

bool PLG_Common::getOption2ForMode() const {
    return m_option2ByMode[m_host->isFileMode()];
}

bool PLG_Common::isAvailableInMode(int mode) const {
    return mode >= zeb::LiveMode && mode <= zeb::FileMode && (m_modeMask >> mode & 1) != 0;
}

bool PLG_Common::isAvailable() const {
    return isAvailableInMode(m_host->getOperatingMode());
}

bool PLG_Common::isChecked(DOC_Interface* doc, int) {
    if (!doc || !isAvailable()) {
        return false;
    }
    switch (m_buttonType) {
        case 1:
        case 5:
            return true;
        case 4: {
            const PLG_Interface* current = m_host->appStatus().getCurrentPlugin();
            return current && current->getName() == m_name;
        }
        case 2:
        case 3:
            return doc->image().isToolChecked(m_name);
        case DialogButton:
            return isDialogVisible();
        default:
            return isApplicationTool(m_name) ? m_running : doc->image().isToolChecked(m_name);
    }
}

// The dialog

QDialog* PLG_Common::getDialog(bool create) {
    // Making a dialog may ask its user something; what is clicked meanwhile must not make a second one.
    if (m_dialog || !create || m_creatingDialog) {
        return m_dialog;
    }
    const QPointer<PLG_Common> alive(this);
    m_creatingDialog = true;
    const auto done = qScopeGuard([this, &alive] {
        if (alive) {
            m_creatingDialog = false;
        }
    });
    QDialog* made = createDialog(create);
    if (!alive) {
        delete made;
        return nullptr;
    }
    m_dialog = static_cast<GUI_ModelessPatternDialog*>(made);
    if (m_dialog) {
        connect(m_dialog, &GUI_ModelessPatternDialog::shown, this, &PLG_Common::slotModelessPatternDialogShown);
        connect(m_dialog, &GUI_ModelessPatternDialog::closed, this, &PLG_Common::slotModelessPatternDialogClosed);
    }
    return m_dialog;
}

void PLG_Common::showDialog() {
    if (!m_dialog || !(m_dialog->isHidden() || m_dialog->isMinimized())) {
        return;
    }
    const QPointer<PLG_Common> alive(this);
    if (m_dialog->isMinimized()) {
        m_dialog->setWindowState(Qt::WindowNoState);
    }
    m_dialog->openPage();
    // The page may have waited for its user, and the plug-in be gone by now.
    if (alive) {
        m_dialog->show();
    }
    if (alive && needsLivePause()) {
        restartLiveAfterTool();
    }
    if (alive && getQuickKind() == 1) {
        m_host->docManager().setActiveQuickTool(QString());
        m_host->docManager().setQuickTool(m_name, true);
    }
}

void PLG_Common::hideDialog() {
    if (isDialogVisible()) {
        m_dialog->hide();
    }
}

void PLG_Common::closeDialog() {
    if (m_dialog && !m_dialog->isHidden()) {
        m_dialog->close();
    }
}

void PLG_Common::closeByType() {
    if (m_buttonType == DialogButton) {
        closeDialog();
    }
}

void PLG_Common::updateDialog(int mode) {
    if (!isDialogVisible()) {
        return;
    }
    const QPointer<PLG_Common> alive(this);
    m_dialog->updatePage();
    if (alive && !isAvailableInMode(mode) && m_closeOnModeChange) {
        closeDialog();
    }
}

bool PLG_Common::isDialogVisible() const {
    return m_dialog && m_dialog->isVisible();
}

void PLG_Common::slotModelessPatternDialogClosed() {
    if (m_dialog && !m_dialog->isPluginCloseEnabled()) {
        return;
    }
    // Held here, since a host may destroy the plug-in that it closes.
    ZebHost& host = *m_host;
    const QPointer<PLG_Common> alive(this);
    const QString name = m_name;
    // This runs inside the window's close event, and Qt does not bear an exception there.
    try {
        if (needsLivePause()) {
            restartLiveAfterEnd();
        }
        const auto update = qScopeGuard([&host] { host.updateUI(zeb::UpdateAll, true); });
        const DeterScope deter(host);
        if (alive) {
            hideDialog();
        }
        host.appStatus().closePlugin(name);
    } catch (const std::exception& e) {
        logFailure([&host, &e] { host.errorHandler(e); });
    }
}
