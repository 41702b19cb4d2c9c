#pragma once

#include <QByteArray>
#include <QString>

/// Puts `bytes` into the file of that path, all of them or none: what stood there before stays until the new ones are
/// on the disk. Answers why that could not be done, in the words of the system, or as a text that may be translated;
/// empty when it was. Any thread.
[[nodiscard]] QString writeWholeFile(const QString& path, const QByteArray& bytes);
