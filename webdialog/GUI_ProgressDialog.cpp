#include "GUI_ProgressDialog.h"

#include "PlainText.h"

#include <QKeyEvent>
#include <QLabel>

GUI_ProgressDialog::GUI_ProgressDialog(const QString& label, const QString& cancelText, int minimum, int maximum,
                                       QWidget* parent, Qt::WindowFlags windowFlags, bool ignoreEscape)
    : QProgressDialog(parent, windowFlags), m_ignoreEscape(ignoreEscape) {
    auto* text = new QLabel(plainText(label));
    text->setTextFormat(Qt::PlainText);
    text->setAlignment(Qt::AlignCenter);
    setLabel(text);
    setRange(minimum, maximum);
    setCancelButtonText(cancelText);
}

void GUI_ProgressDialog::keyPressEvent(QKeyEvent* event) {
    if (m_ignoreEscape && event->key() == Qt::Key_Escape) return;
    QProgressDialog::keyPressEvent(event);
}
