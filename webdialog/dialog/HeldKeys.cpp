#include "HeldKeys.h"

#include <QCoreApplication>
#include <QKeyEvent>

HeldKeys::HeldKeys() {
    QCoreApplication::instance()->installEventFilter(this);
}

bool HeldKeys::isRepeat(const QKeyEvent& press) const {
    return press.isAutoRepeat() ||
           (press.key() == m_released.first && press.timestamp() != 0 && press.timestamp() == m_released.second);
}

bool HeldKeys::presses(int key) {
    return key == Qt::Key_Space || key == Qt::Key_Return || key == Qt::Key_Enter || key == Qt::Key_Escape ||
           key == Qt::Key_Menu || (key >= Qt::Key_F1 && key <= Qt::Key_F35);
}

bool HeldKeys::eventFilter(QObject* object, QEvent* event) {
    if (event->type() == QEvent::KeyRelease || event->type() == QEvent::KeyPress) {
        const auto& key = *static_cast<QKeyEvent*>(event);
        if (event->type() == QEvent::KeyRelease) {
            m_released = {key.key(), key.timestamp()};
        } else if (key.key() != m_released.first) {
            m_released = {};  // another key ends a repeat
        }
    }
    return QObject::eventFilter(object, event);
}
