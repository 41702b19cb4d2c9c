#include "BoxButton.h"

#include <QAbstractButton>
#include <QMessageBox>

namespace {

QMessageBox::StandardButton standardButton(const QString& name) {
    if (name == QLatin1String("ok")) {
        return QMessageBox::Ok;
    }
    if (name == QLatin1String("cancel")) {
        return QMessageBox::Cancel;
    }
    if (name == QLatin1String("yes")) {
        return QMessageBox::Yes;
    }
    if (name == QLatin1String("no")) {
        return QMessageBox::No;
    }
    return QMessageBox::NoButton;
}

QAbstractButton* acceptingButton(const QMessageBox& box) {
    const QList<QAbstractButton*> buttons = box.buttons();
    for (QAbstractButton* button : buttons) {
        const QMessageBox::ButtonRole role = box.buttonRole(button);
        if (role == QMessageBox::AcceptRole || role == QMessageBox::YesRole) {
            return button;
        }
    }
    return buttons.value(0);
}

}  // namespace

QAbstractButton* findButton(QMessageBox& box, const QString& wanted) {
    if (wanted.isEmpty()) {
        return acceptingButton(box);
    }
    const QList<QAbstractButton*> buttons = box.buttons();
    for (QAbstractButton* button : buttons) {
        if (buttonText(*button).compare(wanted, Qt::CaseInsensitive) == 0) {
            return button;
        }
    }
    return box.button(standardButton(wanted.toLower()));
}

QString buttonText(const QAbstractButton& button) {
    return button.text().remove(QLatin1Char('&'));
}
