#pragma once

#include <QString>

class QAbstractButton;
class QMessageBox;

/// The button that a scenario means: by its text, or by the name "ok", "cancel", "yes" or "no"; in any case of
/// letters. Empty: the one that accepts the box. Null when there is none.
QAbstractButton* findButton(QMessageBox& box, const QString& wanted);

/// What stands on the button, without the mark of its shortcut.
QString buttonText(const QAbstractButton& button);
