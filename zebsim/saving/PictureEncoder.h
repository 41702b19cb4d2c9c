#pragma once

#include "FileMetadata.h"
#include "PictureOptions.h"

#include <QByteArray>
#include <QImage>
#include <QString>

/// The file of a picture with its metadata; empty when it can't be written. The picture may be changed. Any thread.
using PictureEncoder = QByteArray (*)(QImage&& picture, const FileMetadata& metadata, const PictureOptions& options);

/// Each text of the metadata under its name, and all of it as "Description".
QByteArray pngOf(QImage&& picture, const FileMetadata& metadata, const PictureOptions& options);
/// All of it as the description of the image; without loss.
QByteArray tiffOf(QImage&& picture, const FileMetadata& metadata, const PictureOptions& options);
/// All of it as the comment.
QByteArray jpegOf(QImage&& picture, const FileMetadata& metadata, const PictureOptions& options);
/// BMP has no room for texts.
QByteArray bmpOf(QImage&& picture, const FileMetadata& metadata, const PictureOptions& options);
