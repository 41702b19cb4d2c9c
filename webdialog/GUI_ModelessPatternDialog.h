#pragma once

#include "GUI_WebViewDialog.h"

class PLG_Interface;

/// The dialog of a plug-in: modeless, hidden and kept when it is closed, known to the host. GUI thread.
///
/// A close while a call of its bridge runs is refused and posted again, as a whole, when the call has ended.
class GUI_ModelessPatternDialog : public GUI_WebViewDialog {
    Q_OBJECT

public:
    /// `plugin` is not owned and outlives the dialog.
    GUI_ModelessPatternDialog(ZebHost* host, const QString& title, const QString& url, JS_Mediator_Dialog* bridge,
                              PLG_Interface* plugin, QWidget* parent = nullptr);

    /// Whether closing the dialog closes the plug-in.
    virtual bool isPluginCloseEnabled() const { return m_pluginCloseEnabled; }
    virtual void setPluginCloseEnabled(bool enabled) { m_pluginCloseEnabled = enabled; }
    /// Tells the page to read its data again.
    virtual void updatePage();
    /// Centres the window, with its size, on the screen of the host's main window.
    virtual void centerOnMainScreen();

Q_SIGNALS:
    void shown();
    void closed();

protected:
    void closeEvent(QCloseEvent* event) override;
    void showEvent(QShowEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    bool deferClose(QEvent* event);
    void tellActivated();

    PLG_Interface* const m_plugin;
    bool m_pluginCloseEnabled = true;
    bool m_closePosted = false;
};
