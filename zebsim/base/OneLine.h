#pragma once

#include <QString>

/// The text in one line: what would begin another, or steer a terminal, stands as its escape. Any thread.
QString inOneLine(const QString& text);
