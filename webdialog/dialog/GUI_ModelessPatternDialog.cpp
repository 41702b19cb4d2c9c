#include "GUI_ModelessPatternDialog.h"

#include "JS_Mediator_Dialog.h"
#include "LogFailure.h"
#include "PLG_Interface.h"
#include "UTL_Messages.h"
#include "WindowPlacement.h"
#include "ZebAppStatus.h"
#include "ZebDocManager.h"
#include "ZebHost.h"

#include <QApplication>
#include <QCloseEvent>
#include <QScopedValueRollback>
#include <QScreen>

#include <utility>

GUI_ModelessPatternDialog::GUI_ModelessPatternDialog(ZebHost* host, const QString& title, const QString& url,
                                                     JS_Mediator_Dialog* bridge, PLG_Interface* plugin, QWidget* parent)
    : GUI_WebViewDialog(host, title, url, bridge, parent), m_plugin(plugin) {
    installEventFilter(this);
}

void GUI_ModelessPatternDialog::discard() {
    if (m_telling == 0) {
        delete this;
        return;
    }
    endPage();
    setAttribute(Qt::WA_DontShowOnScreen);
    hide();
    deleteLater();
}

void GUI_ModelessPatternDialog::openPage() {
    Q_EMIT getBridge()->open();
}

void GUI_ModelessPatternDialog::closePage() {
    Q_EMIT getBridge()->close();
}

void GUI_ModelessPatternDialog::updatePage() {
    Q_EMIT getBridge()->update();
}

void GUI_ModelessPatternDialog::centerOnMainScreen() {
    const QWidget* mainWindow = host().getMainWindow();
    const QScreen* target = mainWindow ? mainWindow->screen() : screen();
    move(centeredTopLeft(target->geometry(), frameGeometry().size()));
}

void GUI_ModelessPatternDialog::closeEvent(QCloseEvent*) {
    const QPointer<GUI_ModelessPatternDialog> self(this);
    host().appStatus().notifyPluginClosed(m_plugin);
    if (self && getBridge()) {
        closePage();
    }
    // The page's answer may have waited for the user, and the dialog be gone by now.
    if (self) {
        Q_EMIT closed();
    }
}

void GUI_ModelessPatternDialog::showEvent(QShowEvent* event) {
    GUI_WebViewDialog::showEvent(event);
    tellShown();
    if (m_plugin) {
        QApplication::setActiveWindow(this);
    }
    if (m_plugin) {
        Q_EMIT shown();
    }
}

void GUI_ModelessPatternDialog::tellShown() {
    const QScopedValueRollback telling(m_telling, m_telling + 1);
    host().appStatus().notifyPluginShown(m_plugin);
}

bool GUI_ModelessPatternDialog::eventFilter(QObject* watched, QEvent* event) {
    if (watched == this) {
        if (event->type() == QEvent::Close && deferClose(event)) {
            return true;
        }
        if (event->type() == QEvent::WindowActivate) {
            tellActivated();
        }
    }
    return GUI_WebViewDialog::eventFilter(watched, event);
}

bool GUI_ModelessPatternDialog::deferClose(QEvent* event) {
    JS_Mediator* busy = busyBridge();
    if (!busy) {
        return false;
    }
    event->ignore();
    if (host().isApplicationClosing()) {
        UTL_Messages::rejectAll();
    }
    if (std::exchange(m_closePosted, true)) {
        return true;
    }
    busy->afterCalls([dialog = QPointer<GUI_ModelessPatternDialog>(this)] {
        if (!dialog) {
            return;
        }
        dialog->m_closePosted = false;
        dialog->close();
    });
    return true;
}

void GUI_ModelessPatternDialog::tellActivated() {
    if (!m_plugin) {
        return;
    }
    logFailure([this] {
        if (m_plugin->isReselectOnActivate()) {
            host().docManager().setQuickTool(m_plugin->getName(), false);
        }
    });
    tellShown();
}
