#include "FreshKeys.h"

#include <QDialog>
#include <QKeyEvent>
#include <QPushButton>

#include <utility>

namespace {

/// Nobody lets go of a key and presses it again within it.
constexpr ulong OneMomentMs = 5;

class FreshKeys : public QObject {
public:
    using QObject::QObject;

    bool eventFilter(QObject* object, QEvent* event) override {
        if (event->type() == QEvent::KeyPress && isHeld(*static_cast<QKeyEvent*>(event))) {
            return true;
        }
        if (event->type() == QEvent::KeyRelease) {
            const auto& key = *static_cast<QKeyEvent*>(event);
            m_released = {key.key(), key.timestamp()};
        }
        return QObject::eventFilter(object, event);
    }

private:
    /// Where windows are slow a repeat comes as a release and a press of one moment.
    bool isHeld(const QKeyEvent& key) const {
        return key.isAutoRepeat() || (key.key() == m_released.first && key.timestamp() != 0 &&
                                      key.timestamp() - m_released.second <= OneMomentMs);
    }

    std::pair<int, ulong> m_released{0, 0};
};

}  // namespace

void takeFreshKeysOnly(QDialog& dialog) {
    auto* filter = new FreshKeys(&dialog);
    dialog.installEventFilter(filter);
    const auto buttons = dialog.findChildren<QPushButton*>();
    for (QPushButton* button : buttons) {
        button->installEventFilter(filter);
    }
}
