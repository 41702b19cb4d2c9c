#pragma once

#include "NameFamilies.h"
#include "PictureEncoder.h"
#include "VideoFormats.h"

#include <QByteArray>
#include <QImage>
#include <QList>
#include <QString>

/// A kind of file that images are saved as, with its options. Any thread.
struct SaveFormat {
    /// As the preferences hold it, and what a file's name ends in.
    QString id;
    QString suffix;
    /// Null for a video, which a program makes.
    PictureEncoder encoder = nullptr;
    /// A file can have pages, a picture each.
    bool hasPages = false;
    PictureOptions options = {};
    VideoOptions video = {};

    bool isVideo() const { return encoder == nullptr; }
    /// All frames of a track stand in one file.
    bool isOneFile() const { return isVideo() || (hasPages && options.isMultiPage); }
    /// The file of a picture with its metadata, of a camera that fills so many bits of a channel; empty when it can't
    /// be written. Not of a video.
    QByteArray encoded(QImage picture, const FileMetadata& metadata, int cameraBits = 8) const;
    /// Bytes that a frame takes with a picture and metadata like these; of a video, on average.
    qint64 expectedSize(const QImage& picture, const FileMetadata& metadata, int cameraBits) const;
};

/// PNG, TIFF, JPEG, BMP, AVI, MOV, MP4, each with the options of a file that nobody has chosen any for.
const QList<SaveFormat>& saveFormats();
/// The first for an unknown id; "video" is MP4.
const SaveFormat& saveFormat(const QString& id);
/// The one that the preferences of `family`, as "export/", choose, with its options.
SaveFormat chosenFormat(const PrefReader& pref, const QString& family);
