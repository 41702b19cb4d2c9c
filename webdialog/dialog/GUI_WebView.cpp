#include "GUI_WebView.h"

#include "AccessiblePage.h"
#include "GUI_WebPage.h"

#include <QFocusEvent>
#include <QKeyEvent>
#include <QWebElement>
#include <QWebFrame>

GUI_WebView::GUI_WebView(ZebHost* host, QWidget* parent) : QWebView(parent), m_page(new GUI_WebPage(host, this)) {
    setPage(m_page);
    m_accessible = std::make_unique<AccessiblePage>(*this);
    setContextMenuPolicy(Qt::NoContextMenu);
    setAcceptDrops(false);
}

GUI_WebView::~GUI_WebView() {
    if (!m_inspector) {
        return;
    }
    m_inspector->close();
    delete m_inspector;
}

void GUI_WebView::focusOutEvent(QFocusEvent* event) {
    const bool windowIsLeft = event->reason() == Qt::ActiveWindowFocusReason || event->reason() == Qt::PopupFocusReason;
    QWebFrame& frame = *page()->mainFrame();
    if (!windowIsLeft) {
        frame.findFirstElement(QStringLiteral(":focus")).evaluateJavaScript(QStringLiteral("this.blur()"));
    }
    QWebView::focusOutEvent(event);
}

void GUI_WebView::keyPressEvent(QKeyEvent* event) {
    const int key = event->key();
    if (HeldKeys::presses(key) && m_held.isRepeat(*event) && !isTyping(key)) {
        event->accept();
        return;
    }
    QWebView::keyPressEvent(event);
}

bool GUI_WebView::isTyping(int key) const {
    const QString texts = key == Qt::Key_Space ? QStringLiteral("textarea:focus, input[type=text]:focus")
                                               : QStringLiteral("textarea:focus");
    return (key == Qt::Key_Space || key == Qt::Key_Return || key == Qt::Key_Enter) &&
           !page()->mainFrame()->findFirstElement(texts).isNull();
}

void GUI_WebView::showCustomContextMenu(QPoint pos) {
    if (!m_menu.isEmpty()) {
        m_menu.exec(mapToGlobal(pos));
    }
}

void GUI_WebView::execWebInspector() {
    if (m_inspector) {
        m_page->triggerAction(QWebPage::InspectElement);
    }
}
