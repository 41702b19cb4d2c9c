#pragma once

#include "CustomInfo.h"
#include "Recording.h"
#include "SaveFormat.h"

#include <QDateTime>
#include <QStringList>

class Camera;
struct CameraState;
struct SaveOrders;
struct SaveTrack;

/// What stands in the file beside the images of a recording, so that the program can open them again;
/// docs/recordings.md tells its form. Any thread.
struct RecordingInformation {
    static constexpr int Version = 1;

    QString camera;
    QString address;
    QString model;
    QString comment;
    QString partitionName;
    /// That a camera fills of a channel.
    int bits = 8;
    /// With the range that was asked for; how much of it the files hold follows from their number.
    Recording recording;
    /// Every so many frames of the range stand in files.
    int step = 1;
    SaveFormat format;
    QDateTime date;
    /// Names without their folder, in the order of the frames; of one file for all frames that alone.
    QStringList files;
    int frames = 0;

    QByteArray toJson() const;

    /// Without files.
    static RecordingInformation of(const Camera& camera, const CameraState& state, const Recording& recording);
};

/// What its information file is called of files with that stem.
QString informationPath(const QString& stem);
/// Of a track of which the first `saved` frames stand in files; not of a layout.
RecordingInformation informationOf(const SaveOrders& orders, const SaveTrack& track, int saved);
/// Of a picture of one frame, counted as in the memory; of a live image, which has no recording, the frame is 0. `file`
/// is the picture's path.
RecordingInformation informationOf(const Camera& camera, const std::optional<Recording>& recording, int frame,
                                   const SaveFormat& format, const QString& file, const QDateTime& date);
