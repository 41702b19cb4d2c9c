#include "FreshKeys.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QKeyEvent>
#include <QPushButton>

#include <utility>

namespace {

/// Nobody lets go of a key and presses it again within it.
constexpr ulong OneMomentMs = 5;

class FreshKeys : public QObject {
public:
    explicit FreshKeys(QObject* parent) : QObject(parent) { m_shown.start(); }

    bool eventFilter(QObject* object, QEvent* event) override {
        if (event->type() == QEvent::KeyPress && presses(*static_cast<QKeyEvent*>(event)) &&
            isHeld(*static_cast<QKeyEvent*>(event))) {
            return true;
        }
        if (event->type() == QEvent::KeyRelease) {
            const auto& key = *static_cast<QKeyEvent*>(event);
            m_released = {key.key(), key.timestamp()};
        }
        return QObject::eventFilter(object, event);
    }

private:
    static bool presses(const QKeyEvent& key) {
        return key.key() == Qt::Key_Return || key.key() == Qt::Key_Enter || key.key() == Qt::Key_Space ||
               key.key() == Qt::Key_Escape;
    }
    /// Or pressed for what was there before. Where windows are slow a repeat comes as a release and a press of one
    /// moment.
    bool isHeld(const QKeyEvent& key) const {
        const bool isHasty = key.key() != Qt::Key_Escape && !m_shown.hasExpired(QApplication::doubleClickInterval());
        return isHasty || key.isAutoRepeat() ||
               (key.key() == m_released.first && key.timestamp() != 0 &&
                key.timestamp() - m_released.second <= OneMomentMs);
    }

    QElapsedTimer m_shown;
    std::pair<int, ulong> m_released{0, 0};
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
