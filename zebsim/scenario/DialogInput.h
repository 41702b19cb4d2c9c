#pragma once

#include <QString>

class QDialog;

/// Clicks the check box, radio or push button with that text in a dialog of widgets. `row`, if it is not empty: the one
/// in that row of its list, which is told by a text of the row and is scrolled to. Throws `ScenarioError` when there is
/// no such button or when it takes no press.
void pushButton(QDialog& dialog, const QString& text, const QString& row);
