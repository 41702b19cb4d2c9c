#pragma once

#include <QPointer>
#include <QWidget>

/// Keeps a dialog over the window that the user works in, and gives that one the keyboard back at the end of the scope.
/// The window system would go by its parent: it would raise the main window with a dialog of that or of nobody, and
/// leave the keyboard there. GUI thread.
class OverActiveWindow {
public:
    /// From now on a program knows where its user was last, for while he is in another program or between two dialogs.
    /// Once; a library that a program loads goes without.
    static void rememberWindows();

    /// Before `dialog` is shown.
    explicit OverActiveWindow(QWidget& dialog);
    /// When the dialog is gone.
    ~OverActiveWindow();
    OverActiveWindow(const OverActiveWindow&) = delete;
    OverActiveWindow& operator=(const OverActiveWindow&) = delete;

    /// Where the user was; null when nobody knows, or when it is gone.
    QWidget* window() const { return m_before; }

private:
    const QPointer<QWidget> m_before;
};
