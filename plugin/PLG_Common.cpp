#include "PLG_Common.h"

#include "DOC_Image.h"
#include "DOC_Interface.h"
#include "DeterScope.h"
#include "DocumentGuard.h"
#include "GUI_ModelessPatternDialog.h"
#include "JS_Mediator_Dialog.h"
#include "LogFailure.h"
#include "TextResource.h"
#include "ZebAppStatus.h"
#include "ZebDocManager.h"
#include "ZebHost.h"
#include "ZebLiveLoop.h"
#include "ZebPageBridge.h"
#include "ZebUndo.h"
#include "ZebViewOps.h"

#include <QApplication>
#include <QDebug>
#include <QKeyEvent>
#include <QScopeGuard>

#include <utility>

namespace {

constexpr int DialogButton = 6;

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

// Life of an image tool

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

// Documents, mouse and keys

bool PLG_Common::hasDoc(DOCKEY key) {
    return m_host->docManager().getDoc(key, 1) != nullptr;
}

QPoint PLG_Common::getDocPoint(DOCKEY key) {
    DOC_Interface* doc = m_host->docManager().getDoc(key, 1);
    return doc ? doc->image().getPoint() : QPoint();
}

ToolRectangle PLG_Common::toolRectangleOn(DOC_Interface& doc) const {
    const ZebViewOps& views = m_host->viewOps();
    const DOCKEY key = doc.getKey();
    const ToolRectangle::View view{qRound(views.getRotation(key) * 360.0), views.isHorizontalFlip(key),
                                   views.isVerticalFlip(key), views.getZoom(key)};
    return ToolRectangle(doc.image().getImageSize(), view, m_rules);
}

void PLG_Common::setToolRectOn(DOC_Interface& doc, const QRect& rect) {
    if (!rect.isEmpty()) {
        doc.image().setToolRect(m_name, rect);
    }
}

void PLG_Common::mousePress(const QPoint& point, DOCKEY key) {
    if (std::exchange(m_dragging, true)) {
        return;
    }
    m_host->undo().beginMacro(QString());
    m_dragStart = point;
    m_lastPoint = point;
    DOC_Interface* doc = m_host->docManager().getDoc(key, 1);
    const QRect rect = doc ? doc->image().getToolRect(m_name) : QRect();
    if (rect.isNull() || m_host->isToolActive(QStringLiteral("t_crosscursor"))) {
        return;
    }
    m_dragRect = rect;
    m_dragHandle = toolRectangleOn(*doc).handleAt(rect, point);
}

void PLG_Common::mouseMove(const QPoint& point, DOCKEY key) {
    m_lastPoint = point;
    DOC_Interface* doc = m_host->docManager().getDoc(key, 1);
    if (!doc) {
        return;
    }
    if (!m_dragging) {
        const QRect rect = doc->image().getToolRect(m_name);
        if (!rect.isNull()) {
            setCursorForHandle(doc, toolRectangleOn(*doc).handleAt(rect, point));
        }
        return;
    }
    if (m_dragHandle == ToolRectangle::Outside) {
        return;
    }
    const QRect rect = toolRectangleOn(*doc).dragged(m_dragRect, m_dragHandle, m_dragStart, point);
    // An edge that stops follows from where it is; a move is measured from its start.
    if (m_dragHandle != ToolRectangle::Inside && !rect.isEmpty()) {
        m_dragRect = rect;
    }
    setToolRectOn(*doc, rect);
}

void PLG_Common::mouseRelease(DOCKEY key) {
    mouseReleaseAt(m_lastPoint, key);
}

void PLG_Common::mouseReleaseAt(const QPoint& point, DOCKEY) {
    m_lastPoint = point;
    if (!std::exchange(m_dragging, false)) {
        return;
    }
    m_dragHandle = ToolRectangle::Outside;
    resetCursor();
    m_host->undo().endMacro();
}

void PLG_Common::keyPress(QKeyEvent* event) {
    DOC_Interface* doc = m_host->docManager().getCurrentDoc();
    const QRect rect = doc ? doc->image().getToolRect(m_name) : QRect();
    if (rect.isNull()) {
        return;
    }
    const auto stepped = toolRectangleOn(*doc).stepped(rect, event->key(), event->modifiers());
    if (!stepped) {
        return;
    }
    setToolRectOn(*doc, *stepped);
    m_keyStepped = true;
}

void PLG_Common::setCursorForHandle(DOC_Interface* doc, int handle) {
    const auto shape = doc ? toolRectangleOn(*doc).cursorFor(handle) : std::nullopt;
    if (!shape) {
        resetCursor();
        return;
    }
    if (m_cursorHandle < 0) {
        QApplication::setOverrideCursor(*shape);
    } else {
        QApplication::changeOverrideCursor(*shape);
    }
    m_cursorHandle = handle;
}

void PLG_Common::resetCursor() {
    // Only our own: below it may lie a cursor of the host's.
    if (std::exchange(m_cursorHandle, -1) >= 0) {
        QApplication::restoreOverrideCursor();
    }
}

QRect PLG_Common::toSensorRect(DOC_Interface* doc, const QRect& rect) {
    double factor = 1.0;
    if (doc && m_host->isCapable(QStringLiteral("binning"), doc, 0)) {
        factor = 1 << doc->image().getBinningPower();
    }
    if (doc && doc->image().getScale() > 0.0) {
        factor *= doc->image().getScale();
    }
    return ToolRectangle::toSensor(rect, factor);
}

QVariantMap PLG_Common::getRectParameters(DOC_Interface* doc, bool shown) {
    if (!doc) {
        return ToolRectangle(QSize(0, 0), {}, m_rules).parameters(m_rect, false);
    }
    const QRect rect = doc->image().getToolRect(m_name);
    return toolRectangleOn(*doc).parameters(rect.isNull() ? m_rect : rect, shown);
}
