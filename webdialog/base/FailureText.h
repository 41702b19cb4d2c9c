#pragma once

#include <QString>

/// What the exception that is being handled says to a user; never empty. Only inside a `catch`.
QString currentFailureText();

/// `failure` with the `name` of what it is about in front, unless the name stands in it as a word. An empty name is
/// none.
QString withName(const QString& failure, const QString& name);
