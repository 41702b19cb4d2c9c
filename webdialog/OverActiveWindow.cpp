#include "OverActiveWindow.h"

#include "WindowPlacement.h"

#include <QApplication>
#include <QScreen>
#include <QWindow>

namespace {

/// A list beside a control, or a progress, goes before the dialog does.
QWidget* lastingWindow(QWidget* window) {
    while (window != nullptr && window->windowType() != Qt::Window && window->windowType() != Qt::Dialog) {
        window = window->parentWidget() ? window->parentWidget()->window() : nullptr;
    }
    return window != nullptr && window->isVisible() && !window->isMinimized() ? window : nullptr;
}

QPoint keptOn(const QRect& screen, const QPoint& topLeft, const QSize& size) {
    return {qMax(screen.left(), qMin(topLeft.x(), screen.right() - size.width())),
            qMax(screen.top(), qMin(topLeft.y(), screen.bottom() - size.height()))};
}

}  // namespace

OverActiveWindow::OverActiveWindow(QWidget& dialog, QWidget* last)
    : m_before(lastingWindow(QApplication::activeWindow() ? QApplication::activeWindow() : last)) {
    if (m_before == nullptr) return;
    // The parent stays the owner; what the dialog stands over is the native window's matter.
    dialog.winId();
    dialog.windowHandle()->setTransientParent(m_before->windowHandle());
    dialog.ensurePolished();
    const QSize size = dialog.testAttribute(Qt::WA_Resized) ? dialog.size() : dialog.sizeHint();
    dialog.move(
        keptOn(m_before->screen()->availableGeometry(), centeredTopLeft(m_before->frameGeometry(), size), size));
}

OverActiveWindow::~OverActiveWindow() {
    // A box that came over the dialog goes on.
    QWidget* modal = QApplication::activeModalWidget();
    if (modal != nullptr)
        modal->activateWindow();
    else if (m_before != nullptr && m_before->isVisible())
        m_before->activateWindow();
}
