#pragma once

#include <QString>

class QImage;

/// Puts a picture into a file as `writeWholeFile` does, in the format of the file's suffix. Answers why that could not
/// be done; empty when it was. Any thread.
[[nodiscard]] QString writeWholePicture(const QString& path, const QImage& picture);
