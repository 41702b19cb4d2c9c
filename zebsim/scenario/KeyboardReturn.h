#pragma once

#include <QHash>
#include <QObject>
#include <QPointer>

class QWidget;

/// Gives the keyboard back from a dialog that has gone to the window before, and to a modal one from those behind it,
/// as a window manager does, on a platform that has none. GUI thread.
class KeyboardReturn : public QObject {
public:
    KeyboardReturn();

    bool eventFilter(QObject* object, QEvent* event) override;

private:
    /// The window that was active when a dialog came up.
    QHash<QObject*, QPointer<QWidget>> m_before;
};
