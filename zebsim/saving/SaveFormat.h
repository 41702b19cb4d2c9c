#pragma once

#include <QByteArray>
#include <QImage>
#include <QList>
#include <QString>

/// A kind of file that images are saved as.
struct SaveFormat {
    /// As the preferences hold it, and what a file's name ends in.
    QString id;
    QString suffix;
    /// The name that Qt's writers have for it; empty for video.
    QByteArray writer;

    bool isVideo() const { return writer.isEmpty(); }
    /// Whether Qt can write it here; a video it can not.
    bool isPictureThatCanBeWritten() const;
    /// A picture as such a file holds it; empty when it can't be written.
    QByteArray encoded(const QImage& picture) const;
    /// Bytes that a frame takes with a picture like this one; of a video, on average.
    qint64 expectedSize(const QImage& picture) const;
};

/// PNG, TIFF, JPEG, video.
const QList<SaveFormat>& saveFormats();
/// The first for an unknown id.
const SaveFormat& saveFormat(const QString& id);
