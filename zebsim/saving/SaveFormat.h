#pragma once

#include "FileMetadata.h"

#include <QByteArray>
#include <QImage>
#include <QList>
#include <QString>

/// A kind of file that images are saved as.
struct SaveFormat {
    /// As the preferences hold it, and what a file's name ends in.
    QString id;
    QString suffix;
    /// The name that image formats go by; empty for video.
    QByteArray writer;

    bool isVideo() const { return writer.isEmpty(); }
    /// The file of a picture with its metadata; empty when it can't be written.
    QByteArray encoded(QImage picture, const FileMetadata& metadata) const;
    /// Bytes that a frame takes with a picture and metadata like these; of a video, on average.
    qint64 expectedSize(const QImage& picture, const FileMetadata& metadata) const;
};

/// PNG, TIFF, JPEG, video.
const QList<SaveFormat>& saveFormats();
/// The first for an unknown id.
const SaveFormat& saveFormat(const QString& id);
