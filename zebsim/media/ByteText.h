#pragma once

#include <QString>

#include <optional>

/// The bytes of a text as "8 GB", "1.5MB" or "4096"; a kilobyte has 1,024. Nothing for any other text.
std::optional<qint64> bytesOf(const QString& text);
