#pragma once

#include "DeterScope.h"
#include "GUI_Dialog.h"

#include <QList>
#include <QPointer>
#include <QPropertyAnimation>

#include <optional>

class GUI_WebView;
class JS_Mediator;
class JS_Mediator_Dialog;
class QVBoxLayout;
class ZebHost;

/// A dialog whose whole surface is a page, with the bridge behind it. GUI thread.
///
/// The page loads from the constructor on; the host runs no update cycle until it has loaded, and the window
/// fades in then. The caller shows the dialog. It may be destroyed at any time: view and bridges that a call
/// still runs in live on until the call has ended.
class GUI_WebViewDialog : public GUI_Dialog {
    Q_OBJECT

public:
    /// `title` is translated. `bridge` is owned from here on; it is told of a rejection.
    GUI_WebViewDialog(ZebHost* host, const QString& title, const QString& url, JS_Mediator_Dialog* bridge,
                      QWidget* parent = nullptr);
    ~GUI_WebViewDialog() override;

    GUI_WebView* getWebView() const { return m_view; }
    JS_Mediator_Dialog* getBridge() const { return m_bridge; }
    /// One more bridge for the same page, owned; "prefs" stays the dialog's own. Call before the page has begun to run.
    void addBridge(JS_Mediator* bridge);

public Q_SLOTS:
    void slotRejected();
    void loadStarted();
    void loadProgress(int progress);
    void loadFinished(bool ok);

protected:
    void closeEvent(QCloseEvent* event) override;

    ZebHost& host() const { return *m_host; }
    /// A bridge of the page that a call runs in; null when none runs.
    JS_Mediator* busyBridge() const;
    /// False: no update cycle is asked for at the end of a load.
    void setUpdateOnLoad(bool update) { m_updateOnLoad = update; }
    /// Destroys the page and ends all that the dialog has with the host. An empty window is left.
    void endPage();

private:
    void connectSignals();
    QList<JS_Mediator*> bridges() const;
    void fadeIn();

    ZebHost* const m_host;
    JS_Mediator_Dialog* m_bridge;
    QList<JS_Mediator*> m_extraBridges;
    QVBoxLayout* m_layout;
    GUI_WebView* m_view;
    bool m_viewerSuspended = false;
    bool m_updateOnLoad = true;
    std::optional<DeterScope> m_loading;
    QPointer<QPropertyAnimation> m_fade;
};
