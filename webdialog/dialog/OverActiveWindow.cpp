#include "OverActiveWindow.h"

#include "WindowPlacement.h"

#include <QApplication>
#include <QScreen>
#include <QTimer>
#include <QWindow>

namespace {

/// Milliseconds in which a window manager has given the keyboard to a window.
constexpr int SettlingMs = 100;

/// A list beside a control, or a progress, goes before the dialog does.
QWidget* lastingWindow(QWidget* window) {
    while (window != nullptr && window->windowType() != Qt::Window && window->windowType() != Qt::Dialog) {
        window = window->parentWidget() ? window->parentWidget()->window() : nullptr;
    }
    return window != nullptr && window->isVisible() && !window->isMinimized() ? window : nullptr;
}

/// Where the user was last, and stays when a dialog goes; null while that is gone.
QPointer<QWidget>& lastWindow() {
    static QPointer<QWidget> last;
    return last;
}

/// A window manager may put a notice first that came meanwhile, and then leave the keyboard to nobody.
void insistOn(QWidget& window) {
    QTimer::singleShot(SettlingMs, &window, [&window] {
        if (QApplication::activeWindow() == nullptr && QApplication::activeModalWidget() == nullptr) {
            window.activateWindow();
        }
    });
}

QPoint keptOn(const QRect& screen, const QPoint& topLeft, const QSize& size) {
    return {qMax(screen.left(), qMin(topLeft.x(), screen.right() - size.width())),
            qMax(screen.top(), qMin(topLeft.y(), screen.bottom() - size.height()))};
}

}  // namespace

void OverActiveWindow::rememberWindows() {
    QObject::connect(qApp, &QGuiApplication::focusWindowChanged, qApp, [] {
        QWidget* window = QApplication::activeWindow();
        if (window != nullptr && !window->isModal()) {
            lastWindow() = window;
        }
    });
}

OverActiveWindow::OverActiveWindow(QWidget& dialog)
    : m_before(lastingWindow(QApplication::activeWindow() ? QApplication::activeWindow() : lastWindow().data())) {
    if (m_before == nullptr) {
        return;
    }
    if (!m_before->isModal()) {
        lastWindow() = m_before;
    }
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
    if (modal != nullptr) {
        modal->activateWindow();
    } else if (lastingWindow(m_before) != nullptr) {
        m_before->activateWindow();
        if (QGuiApplication::focusWindow() != nullptr) {
            insistOn(*m_before);
        }
    }
}
