#pragma once

#include "HeldKeys.h"

#include <QMenu>
#include <QWebView>

#include <memory>

class AccessiblePage;
class GUI_WebPage;
class ZebHost;

/// The view of a page: no context menu of its own, nothing can be dropped on it. GUI thread.
///
/// When the keyboard goes to another place of its window, or nowhere, its page's element loses the focus for good, as
/// when the user goes on to another element. When the window is left for another one, the element keeps it.
///
/// A key that is held presses once: no press of Space, Enter, Escape, Menu or a function key comes to the page again
/// until it was let go, also where a box has stood meanwhile. In a text Space goes on, and Enter in one of several
/// lines.
class GUI_WebView : public QWebView {
    Q_OBJECT

public:
    explicit GUI_WebView(ZebHost* host, QWidget* parent = nullptr);
    ~GUI_WebView() override;

public Q_SLOTS:
    /// Shows the view's menu at `pos`, in the view's pixels, if the menu has actions.
    void showCustomContextMenu(QPoint pos);
    /// Opens the web inspector, if there is one.
    void execWebInspector();

protected:
    void focusOutEvent(QFocusEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    bool isTyping(int key) const;

    GUI_WebPage* const m_page;
    std::unique_ptr<AccessiblePage> m_accessible;
    const HeldKeys m_held;
    QMenu m_menu;
    QWidget* m_inspector = nullptr;
};
