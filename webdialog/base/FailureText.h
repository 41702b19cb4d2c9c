#pragma once

#include <QString>

/// What the exception that is being handled says to a user; empty for one that ends an operation without a message.
/// Only inside a `catch`.
QString currentFailureText();
