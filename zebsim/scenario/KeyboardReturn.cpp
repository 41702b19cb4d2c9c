#include "KeyboardReturn.h"

#include <QApplication>
#include <QDialog>
#include <QEvent>
#include <QTimer>

namespace {

/// A window manager would not have given it the keyboard.
bool isBehindModal(const QObject* object) {
    const QWidget* modal = QApplication::activeModalWidget();
    const auto* window = qobject_cast<const QWidget*>(object);
    if (modal == nullptr || window == nullptr || !window->isWindow()) {
        return false;
    }
    for (; window != nullptr && window != modal; window = window->parentWidget()) {
    }
    return window == nullptr;
}

void giveBack(const QPointer<QWidget>& window) {
    QWidget* modal = QApplication::activeModalWidget();
    QWidget* target = modal ? modal : window.data();
    if (QApplication::activeWindow() == nullptr && target != nullptr && target->isVisible()) {
        target->activateWindow();
    }
}

}  // namespace

KeyboardReturn::KeyboardReturn() {
    if (QGuiApplication::platformName() == QLatin1String("offscreen")) {
        qApp->installEventFilter(this);
    }
}

bool KeyboardReturn::eventFilter(QObject* object, QEvent* event) {
    if (event->type() == QEvent::Show && qobject_cast<QDialog*>(object) != nullptr) {
        m_before.insert(object, QApplication::activeWindow());
    }
    if (event->type() == QEvent::Hide && m_before.contains(object)) {
        QTimer::singleShot(0, this, [window = m_before.take(object)] { giveBack(window); });
    }
    if (event->type() == QEvent::WindowActivate && isBehindModal(object)) {
        QTimer::singleShot(0, this, [] {
            if (QWidget* modal = QApplication::activeModalWidget()) {
                modal->activateWindow();
            }
        });
    }
    return QObject::eventFilter(object, event);
}
