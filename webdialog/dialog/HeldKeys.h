#pragma once

#include <QObject>

#include <utility>

class QKeyEvent;

/// Tells a key that is held from one that is pressed again, whatever window hears of it. Where the application is slow,
/// a repeat comes unmarked, as a release and a press of one moment. GUI thread.
class HeldKeys : public QObject {
    Q_OBJECT

public:
    /// From now on it watches the keys of the application.
    HeldKeys();

    bool isRepeat(const QKeyEvent& press) const;
    /// Whether `key` is one that works a control, which a repeat must not do once more: Space, Enter, Escape, Menu, and
    /// the function keys.
    static bool presses(int key);

protected:
    bool eventFilter(QObject* object, QEvent* event) override;

private:
    /// The last key let go, and when, in the window system's milliseconds.
    std::pair<int, ulong> m_released{0, 0};
};
