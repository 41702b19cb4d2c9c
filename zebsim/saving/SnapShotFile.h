#pragma once

#include "SaveFormat.h"

#include <QDateTime>

/// Writes the present image of a camera with its metadata into `folder`, which is made if it is not there. The file has
/// the camera's name, the time and a counter, so that it overwrites none. Throws `FileError`.
void writeSnapShot(const QString& folder, const QString& camera, const QDateTime& time, const SaveFormat& format,
                   const QImage& image, const FileMetadata& metadata);
