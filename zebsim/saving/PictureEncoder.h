#pragma once

#include "FileMetadata.h"
#include "PictureOptions.h"

#include <QByteArray>
#include <QImage>
#include <QString>

/// The file of a picture with its metadata; empty when it can't be written. Any thread.
using PictureEncoder = QByteArray (*)(const QImage& picture, const FileMetadata& metadata,
                                      const PictureOptions& options);

/// Each text of the metadata under its name, and all of it as "Description".
QByteArray pngOf(const QImage& picture, const FileMetadata& metadata, const PictureOptions& options);
/// All of it as the description of the image; without loss.
QByteArray tiffOf(const QImage& picture, const FileMetadata& metadata, const PictureOptions& options);
/// The "Description" among the picture's own texts as the comment.
QByteArray jpegOf(const QImage& picture, const FileMetadata& metadata, const PictureOptions& options);
/// BMP has no room for texts.
QByteArray bmpOf(const QImage& picture, const FileMetadata& metadata, const PictureOptions& options);
