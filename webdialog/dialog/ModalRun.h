#pragma once

#include "OverActiveWindow.h"

#include <QDialog>
#include <QPointer>
#include <QString>

class QFileDialog;

/// Runs a dialog over the window that the user works in, and deletes it at the end of the scope, before that window
/// gets the keyboard back. The dialog may go with its parent while it stands: it must not be on the stack. GUI thread.
class ModalRun {
public:
    /// Before `dialog` is shown.
    explicit ModalRun(QDialog* dialog) : m_over(*dialog), m_dialog(dialog) {}
    ~ModalRun() { delete m_dialog; }
    Q_DISABLE_COPY(ModalRun)

    /// Returns when the user has closed it, with its result, or when it is gone, with `Rejected`. Runs an event loop.
    int exec() { return m_dialog->exec(); }
    bool isGone() const { return m_dialog.isNull(); }

private:
    const OverActiveWindow m_over;
    const QPointer<QDialog> m_dialog;
};

/// Runs `dialog` in the same way. The path that the user has chosen; empty when there is none.
QString chosenFile(QFileDialog* dialog);
