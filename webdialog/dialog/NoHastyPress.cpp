#include "NoHastyPress.h"

#include <QAbstractButton>
#include <QApplication>
#include <QEvent>
#include <QMessageBox>

NoHastyPress::NoHastyPress(QMessageBox& box) : QObject(&box) {
    m_shown.start();
    const QList<QAbstractButton*> buttons = box.buttons();
    for (QAbstractButton* button : buttons) {
        button->installEventFilter(this);
    }
}

bool NoHastyPress::eventFilter(QObject* button, QEvent* event) {
    const bool isPress = event->type() == QEvent::MouseButtonPress || event->type() == QEvent::MouseButtonDblClick;
    if (isPress && !m_shown.hasExpired(QApplication::doubleClickInterval())) {
        return true;
    }
    return QObject::eventFilter(button, event);
}
