#pragma once

#include <QObject>
#include <QTemporaryDir>

#include <optional>

class QMenu;
class Simulator;

/// The menu of the viewer that plays the scenarios that ship, for a user who looks on. They bring cameras of their own;
/// what they set among the preferences, but those of the table, and the clock's speed, is as before when they end. GUI
/// thread.
class ScenarioMenu : public QObject {
    Q_OBJECT

public:
    /// `simulator` must outlive the menu.
    explicit ScenarioMenu(Simulator& simulator);

private:
    void refresh(QMenu& menu);
    /// Why none can be played now, in the user's language; empty when one can.
    QString refusal() const;
    void play(const QString& title, const QString& path);
    /// What went wrong, a line each.
    QStringList run(const QString& title, const QString& path);

    Simulator& m_simulator;
    /// What they save stays as long as the program runs.
    std::optional<QTemporaryDir> m_saved;
};
