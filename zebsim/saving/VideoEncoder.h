#pragma once

#include "EncoderProcess.h"

#include <QSize>
#include <QString>
#include <QStringList>

#include <optional>

struct FileMetadata;
struct VideoOptions;

/// The program that makes videos. Any thread.
struct VideoEncoder {
    /// Path of ffmpeg; empty when it is not installed.
    QString program;

    bool isUsable() const { return !program.isEmpty(); }
    /// Arguments that make the video `file` of the format `container`, as "mp4", with its metadata, of bare frames, 32
    /// bits a pixel, from the standard input.
    QStringList arguments(const QSize& size, const QString& file, const QString& container, const VideoOptions& options,
                          const FileMetadata& metadata) const;
    /// Frames that stand in a video, as the program finds them when it reads it. Nothing when it does not read it, when
    /// that takes longer than `limit`, or `stop` is stopped meanwhile.
    std::optional<int> framesIn(const QString& file, const StopSource& stop,
                                std::chrono::seconds limit = EncoderProcess::NoLimit) const;

    /// The one on this machine, looked for once.
    static const VideoEncoder& installed();
};
