#include "FreshKeys.h"

#include "HeldKeys.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QKeyEvent>
#include <QPushButton>

namespace {

class FreshKeys : public QObject {
public:
    explicit FreshKeys(QObject* parent) : QObject(parent) { m_shown.start(); }

    bool eventFilter(QObject* object, QEvent* event) override {
        if (event->type() == QEvent::KeyPress && presses(*static_cast<QKeyEvent*>(event)) &&
            isHeld(*static_cast<QKeyEvent*>(event))) {
            return true;
        }
        return QObject::eventFilter(object, event);
    }

private:
    static bool presses(const QKeyEvent& key) {
        return key.key() == Qt::Key_Return || key.key() == Qt::Key_Enter || key.key() == Qt::Key_Space ||
               key.key() == Qt::Key_Escape;
    }
    /// Or pressed for what was there before.
    bool isHeld(const QKeyEvent& key) const {
        const bool isHasty = key.key() != Qt::Key_Escape && !m_shown.hasExpired(QApplication::doubleClickInterval());
        return isHasty || m_held.isRepeat(key);
    }

    QElapsedTimer m_shown;
    const HeldKeys m_held;
};

}  // namespace

void takeFreshKeysOnly(QWidget& window) {
    auto* filter = new FreshKeys(&window);
    window.installEventFilter(filter);
    const auto buttons = window.findChildren<QPushButton*>();
    for (QPushButton* button : buttons) {
        button->installEventFilter(filter);
    }
}
