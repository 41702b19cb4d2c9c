#pragma once

#include <QList>
#include <QStringList>
#include <QVariantMap>

#include <functional>

class QDialog;

/// How a scenario saves: what it orders for the save dialogs to come, and the list of results. GUI thread.
class SaveScripting {
public:
    /// Of `folder` and `format`, in the next save dialog that stands; what is left out stays as the dialog has it.
    /// Throws `ScenarioError` for any other member.
    void order(const QVariantMap& target);
    /// Whether an order waits for a dialog like this one.
    bool isFor(const QDialog& dialog) const;
    /// Fills the save dialog in and presses Save; throws `ScenarioError`, and leaves the dialog, when that is not
    /// possible.
    void serve(QDialog& dialog);
    bool isOrderLeft() const { return !m_orders.isEmpty(); }

    /// Waits for the end of what is being saved, answers the lines of the list of results, and closes it. Throws
    /// `ScenarioError` when nothing was saved, or `givenUp` came first.
    static QStringList results(const std::function<bool()>& givenUp);

private:
    QList<QVariantMap> m_orders;
};
