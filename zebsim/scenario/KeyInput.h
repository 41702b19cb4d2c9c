#pragma once

#include <QString>

#include <functional>

class QWindow;

/// Types into the window; line feed, tab, backspace and escape characters are the keys of that name.
void typeText(QWindow& window, const QString& text);

/// The key of that name with its modifiers, as "Ctrl+Shift+Down", in whatever window of the program is active, kept
/// down for `hold` milliseconds of real time and repeated meanwhile, as by a keyboard. Throws `ScenarioError` when
/// there is no such key, or when no window is active. `stop` ends the wait.
void pressKey(const QString& name, int hold, const std::function<bool()>& stop);

/// Title of the active window as its frame shows it; empty without one.
QString activeTitle();
