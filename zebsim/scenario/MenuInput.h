#pragma once

#include <QString>

class QMainWindow;

/// Chooses an entry of the window's menus by the texts that stand there, as "Settings > Preferences...". Comes back
/// when a dialog that the entry opens is closed. Throws `ScenarioError` when there is no such entry, when it is greyed,
/// or when a modal dialog stands before the window.
void chooseEntry(const QMainWindow& window, const QString& path);
