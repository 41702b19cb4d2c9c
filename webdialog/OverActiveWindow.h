#pragma once

#include <QPointer>
#include <QWidget>

/// Keeps a dialog over the window that the user works in, and gives that one the keyboard back at the end of the scope.
/// For a dialog of the main window or of nobody: the window system would raise the main window with it, and leave the
/// keyboard there. GUI thread.
class OverActiveWindow {
public:
    /// Before `dialog` is shown. `last` is where the user was last, for while he is in another program; it may be null.
    explicit OverActiveWindow(QWidget& dialog, QWidget* last = nullptr);
    /// When the dialog is gone.
    ~OverActiveWindow();
    OverActiveWindow(const OverActiveWindow&) = delete;
    OverActiveWindow& operator=(const OverActiveWindow&) = delete;

private:
    const QPointer<QWidget> m_before;
};
