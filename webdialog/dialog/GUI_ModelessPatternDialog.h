#pragma once

#include "GUI_WebViewDialog.h"
#include "PLG_Interface.h"

/// The dialog of a plug-in: modeless, hidden and kept when it is closed, known to the host. GUI thread.
///
/// A close while a call of its bridge runs is refused and posted again, as a whole, when the call has ended.
class GUI_ModelessPatternDialog : public GUI_WebViewDialog {
    Q_OBJECT

public:
    /// `plugin` is not owned; it may go inside any call of the dialog to the host, and discards the dialog then.
    GUI_ModelessPatternDialog(ZebHost* host, const QString& title, const QString& url, JS_Mediator_Dialog* bridge,
                              PLG_Interface* plugin, QWidget* parent = nullptr);

    /// Whether closing the dialog closes the plug-in.
    virtual bool isPluginCloseEnabled() const { return m_pluginCloseEnabled; }
    virtual void setPluginCloseEnabled(bool enabled) { m_pluginCloseEnabled = enabled; }
    /// In place of the destructor. A window that is just being shown or activated stays for Qt, empty and hidden, until
    /// the event loop is back.
    void discard();
    /// Tells the page that it is opened, before the window is shown.
    virtual void openPage();
    /// Tells the page to read its data again.
    virtual void updatePage();
    /// Centres the window, with its size, on the screen of the host's main window.
    virtual void centerOnMainScreen();

Q_SIGNALS:
    void shown();
    void closed();

protected:
    /// Tells the page that it is closed.
    virtual void closePage();
    void closeEvent(QCloseEvent* event) override;
    void showEvent(QShowEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    bool deferClose(QEvent* event);
    void tellShown();
    void tellActivated();

    const QPointer<PLG_Interface> m_plugin;
    /// Calls to the host from which Qt comes back to this window.
    int m_telling = 0;
    bool m_pluginCloseEnabled = true;
    bool m_closePosted = false;
};
