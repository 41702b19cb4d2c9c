#pragma once

#include <QAccessible>
#include <QStringList>

/// The state that has what is named, as "checked" and "readOnly". What is no name of a state counts for nothing.
QAccessible::State accessibleState(const QStringList& names);
/// The names of what a state has, of those that a page can tell.
QStringList stateNames(const QAccessible::State& state);
/// What one has and the other has not.
QAccessible::State difference(const QAccessible::State& one, const QAccessible::State& other);
