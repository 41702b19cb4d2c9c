#include "OnePress.h"

#include <QAbstractSpinBox>
#include <QApplication>
#include <QKeyEvent>
#include <QLineEdit>
#include <QTextEdit>
#include <QWebView>

namespace {

bool isTypedInto(const QWidget* widget) {
    return qobject_cast<const QLineEdit*>(widget) != nullptr || qobject_cast<const QTextEdit*>(widget) != nullptr ||
           qobject_cast<const QAbstractSpinBox*>(widget) != nullptr;
}

}  // namespace

bool OnePress::eventFilter(QObject* object, QEvent* event) {
    const bool isOverride = event->type() == QEvent::ShortcutOverride;
    if (isOverride || event->type() == QEvent::KeyPress) {
        const auto& key = *static_cast<QKeyEvent*>(event);
        const QWidget* focus = QApplication::focusWidget();
        const bool isPage = qobject_cast<const QWebView*>(focus) != nullptr;
        if (presses(key.key()) && isRepeat(key) && !isTypedInto(focus) && (isOverride || !isPage)) {
            event->setAccepted(isOverride);  // of a shortcut nothing is left then but the key
            return true;
        }
    }
    return HeldKeys::eventFilter(object, event);
}
