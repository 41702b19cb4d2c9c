#include "GUI_Dialog.h"

#include "TraceText.h"
#include "WholePicture.h"

#include <QEvent>
#include <QKeyEvent>
#include <QPixmap>

GUI_Dialog::GUI_Dialog(QWidget* parent, Qt::WindowFlags windowFlags, bool ignoreEscape)
    : QDialog(parent, windowFlags), m_ignoreEscape(ignoreEscape) {
    connect(this, &GUI_Dialog::signalEnableCloseButton, this, &GUI_Dialog::slotEnableCloseButton);
    connect(this, &GUI_Dialog::signalDisableCloseButton, this, &GUI_Dialog::slotDisableCloseButton);
    installEventFilter(this);
}

bool GUI_Dialog::saveGrab(QWidget* widget, const QString& path) {
    return writeWholePicture(path, widget->grab().toImage()).isEmpty();
}

void GUI_Dialog::userOperationLogWebView(const QString& url, const QString& operation, const QString& control,
                                         const QString& id, const QString& className, const QVariant& value) {
    logUserOperation(url, operation, control, id, className, value);
}

void GUI_Dialog::userOperationErrorLog(const QString& message) {
    logUserError(message);
}

void GUI_Dialog::slotEnableCloseButton() {
    setCloseButton(true);
}

void GUI_Dialog::slotDisableCloseButton() {
    setCloseButton(false);
}

void GUI_Dialog::setCloseButton(bool enabled) {
    if (windowFlags().testFlag(Qt::WindowCloseButtonHint) == enabled) {
        return;
    }
    setWindowFlag(Qt::WindowCloseButtonHint, enabled);
    show();  // a change of the flags hides the window
}

void GUI_Dialog::keyPressEvent(QKeyEvent* event) {
    if (m_ignoreEscape && event->key() == Qt::Key_Escape) {
        return;
    }
    QDialog::keyPressEvent(event);
}

bool GUI_Dialog::eventFilter(QObject* watched, QEvent* event) {
    if (watched == this && event->type() == QEvent::Close) {
        logUserClose(*this);
    }
    return QDialog::eventFilter(watched, event);
}
