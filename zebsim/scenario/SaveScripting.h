#pragma once

#include <QList>
#include <QStringList>
#include <QVariantMap>

#include <functional>

class QDialog;
class GUI_SaveDialog;

/// How a scenario saves: what it orders for the save dialogs to come, and the list of results. GUI thread.
class SaveScripting {
public:
    /// `folder` and `format`, for the next save dialog that stands; what is left out stays as the dialog has it. With
    /// `agree` false its plan is gone back from, and the dialog left. Any other member is an option of the family that
    /// the dialog saves by, without its prefix.
    void order(const QVariantMap& target) { m_orders.append(target); }
    /// Whether an order waits for a dialog like this one.
    bool isFor(const QDialog& dialog) const;
    /// Fills the save dialog in and presses Save, or answers the plan; throws `ScenarioError`, and leaves the dialog,
    /// when that is not possible.
    void serve(QDialog& dialog);
    bool isOrderLeft() const { return !m_orders.isEmpty(); }

    /// The plan that stands, as plain data. Throws `ScenarioError` when there is none.
    static QVariantMap plan();

    /// Waits for the end of what is being saved, answers the lines of the list of results, and closes it if it is to.
    /// Throws `ScenarioError` when nothing was saved, or `givenUp` came first.
    static QStringList results(const std::function<bool()>& givenUp, bool close = true);

private:
    void serveDialog(GUI_SaveDialog& dialog, QVariantMap target);

    QList<QVariantMap> m_orders;
    /// Of the plan that the last dialog served shows.
    bool m_agrees = true;
    bool m_isPlanExpected = false;
};
