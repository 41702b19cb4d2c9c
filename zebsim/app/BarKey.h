#pragma once

#include <QObject>

#include <functional>

class QAction;
class QKeySequence;
class QToolBar;

/// A button of the viewer's bar with a key that works in every window of the program, for the table is a window of its
/// own. What can't be done now shows on the button, and at a press of the key by a text over the active window. GUI
/// thread.
class BarKey : public QObject {
    Q_OBJECT

public:
    /// The bar must outlive it. `refusal` says why it can't be done now, in the user's language; empty when it can.
    BarKey(QToolBar& bar, const QString& text, const QKeySequence& key, std::function<QString()> refusal);

    QAction& action() { return *m_action; }
    /// Has the button show whether it can be done.
    void refresh();
    /// Shows that a press was not taken, and why, and writes it down.
    void refuse(const QString& why) const;

Q_SIGNALS:
    void pressed();

private:
    void press();

    QAction* m_action;
    const std::function<QString()> m_refusal;
};
