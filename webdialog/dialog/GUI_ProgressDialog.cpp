#include "GUI_ProgressDialog.h"

#include "PlainText.h"

#include <QCloseEvent>
#include <QKeyEvent>
#include <QLabel>
#include <QWindow>

GUI_ProgressDialog::GUI_ProgressDialog(const QString& label, const QString& cancelText, int minimum, int maximum,
                                       QWidget* parent, Qt::WindowFlags windowFlags, bool ignoreEscape)
    : QProgressDialog(parent, windowFlags), m_ignoreEscape(ignoreEscape) {
    auto* text = new QLabel(plainText(label));
    text->setTextFormat(Qt::PlainText);
    text->setAlignment(Qt::AlignCenter);
    setLabel(text);
    setRange(minimum, maximum);
    // Only a null text takes the button away.
    setCancelButtonText(cancelText.isEmpty() ? QString() : cancelText);
}

/// The window beneath gets the keyboard back while there still is a window to take it from.
GUI_ProgressDialog::~GUI_ProgressDialog() {
    GUI_ProgressDialog::setVisible(false);
}

void GUI_ProgressDialog::hold(bool held) {
    m_held = held;
    // As Qt has connected it; pointers to the functions find no connection that was made by their names.
    disconnect(this, SIGNAL(canceled()), this, SLOT(cancel()));
    if (!held) {
        connect(this, SIGNAL(canceled()), this, SLOT(cancel()));
    }
}

void GUI_ProgressDialog::reject() {
    if (!m_held) {
        QProgressDialog::reject();
    }
}

void GUI_ProgressDialog::closeEvent(QCloseEvent* event) {
    if (m_held) {
        event->ignore();
    } else {
        QProgressDialog::closeEvent(event);
    }
}

void GUI_ProgressDialog::setVisible(bool visible) {
    if (visible && isModal() && !m_over) {
        m_over.emplace(*this);
        if (m_over->window() != nullptr) {
            m_over->window()->installEventFilter(this);
        }
    }
    QProgressDialog::setVisible(visible);
    if (!visible) {
        m_over.reset();
    }
}

/// A window manager minimises any window, and the one over it goes with it: the user would see no reason why nothing
/// takes a press.
bool GUI_ProgressDialog::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::WindowStateChange && isVisible() && static_cast<QWidget*>(watched)->isMinimized()) {
        QMetaObject::invokeMethod(
            this, [this] { comeAlone(); }, Qt::QueuedConnection);
    }
    return QProgressDialog::eventFilter(watched, event);
}

void GUI_ProgressDialog::comeAlone() {
    if (isVisible()) {
        windowHandle()->hide();
        windowHandle()->setTransientParent(nullptr);
        windowHandle()->show();
    }
}

bool GUI_ProgressDialog::event(QEvent* event) {
    // The cancel button has a shortcut of its own, which would take Escape before it is a key here.
    if (m_ignoreEscape && event->type() == QEvent::ShortcutOverride &&
        static_cast<QKeyEvent*>(event)->key() == Qt::Key_Escape) {
        event->accept();
        return true;
    }
    return QProgressDialog::event(event);
}

void GUI_ProgressDialog::keyPressEvent(QKeyEvent* event) {
    if (m_ignoreEscape && event->key() == Qt::Key_Escape) {
        return;
    }
    QProgressDialog::keyPressEvent(event);
}
