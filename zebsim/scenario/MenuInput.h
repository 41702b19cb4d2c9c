#pragma once

#include <QList>
#include <QString>

class QAction;
class QMainWindow;

/// Chooses an entry of the window's menus by the texts that stand there, as "Settings > Preferences...". Comes back
/// when a dialog that the entry opens is closed. Throws `ScenarioError` when there is no such entry, when it is greyed,
/// or when a modal dialog stands before the window.
void chooseEntry(const QMainWindow& window, const QString& path);

/// The entry of a menu by the text that stands there. Throws `ScenarioError` when there is none, or when it is greyed.
QAction& findEntry(const QList<QAction*>& actions, const QString& text);
