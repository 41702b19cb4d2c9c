#include "FreshKeys.h"

#include <QDialog>
#include <QKeyEvent>
#include <QPushButton>

namespace {

class FreshKeys : public QObject {
public:
    using QObject::QObject;

    bool eventFilter(QObject* object, QEvent* event) override {
        const bool isHeld = event->type() == QEvent::KeyPress && static_cast<QKeyEvent*>(event)->isAutoRepeat();
        return isHeld || QObject::eventFilter(object, event);
    }
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
