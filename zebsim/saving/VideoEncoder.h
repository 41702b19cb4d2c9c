#pragma once

#include <QSize>
#include <QString>
#include <QStringList>

struct FileMetadata;

/// The program that makes videos, and which of its encoders.
struct VideoEncoder {
    /// Path of ffmpeg; empty when it is not installed.
    QString program;
    /// Empty when the program has none that we know.
    QString encoder;

    bool isUsable() const { return !encoder.isEmpty(); }
    /// Arguments that make the video `file`, with its metadata, of bare frames, 32 bits a pixel, from the standard
    /// input.
    QStringList arguments(const QSize& size, const QString& file, const FileMetadata& metadata) const;

    /// Asks the program of that path for its encoders. Takes a moment.
    static VideoEncoder of(const QString& program);
    /// The one on this machine; it is asked once.
    static const VideoEncoder& installed();
};
