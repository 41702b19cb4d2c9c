#pragma once

#include <QString>

#include <optional>

/// Text (UTF-8) of the resource at `path`, as ":/a.txt"; nothing when there is none.
std::optional<QString> readTextResource(const QString& path);
