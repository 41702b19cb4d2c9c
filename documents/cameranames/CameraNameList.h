#pragma once

#include <QMap>
#include <QStringList>

#include <optional>

/// Names for cameras that a user keeps in a file, in its order, by category.
using CameraNames = QMap<QString, QStringList>;

/// The category of names that have none.
constexpr auto DefaultCategory = "?default?";

/// Reads a list in which each line is a category and its names, with commas between and no quoting. Names lose what a
/// file name must not hold, and, as categories do, what is behind their 1,024 first characters. Nothing for a file that
/// is not there or can't be read, is larger than 64 MiB or holds more names than a page can have; the log tells that,
/// and lines without a comma, the first hundred one by one. Does not throw.
std::optional<CameraNames> readCameraNames(const QString& path);
