#pragma once

#include <QAccessible>

class QString;

/// Tells assistive technology what has happened to an element, or to a view.
void tellEvent(QAccessibleInterface& element, QAccessible::Event kind);
/// Tells it that an element's "name", "description", "value", "selection" or "states" has become another. States
/// are names with blanks between, a selection is two numbers.
void tellChange(QAccessibleInterface& element, const QString& what, const QString& before, const QString& now);
