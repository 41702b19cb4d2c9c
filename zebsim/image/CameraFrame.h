#pragma once

#include "ImageEffects.h"
#include "SensorNoise.h"

#include <QSize>
#include <QString>

#include <memory>

class RecordedPictures;
struct CameraState;
struct Recording;

/// What can be seen in one frame of a camera.
struct CameraFrame {
    QString camera;
    QSize resolution;
    /// Live: frames since the host's clock was made. Recorded: counted from the zero point, so below 0 before it.
    qint64 number = 0;
    /// Time of that number, in microseconds.
    qint64 time = 0;
    SensorNoise noise;
    /// What plug-ins make of it.
    FrameEffects effects;
    /// Its picture tells all that.
    bool hasTexts = true;
    /// Of a recording in files, with the frame's number in the memory; null for one that is drawn.
    std::shared_ptr<const RecordedPictures> pictures = {};
    int memoryFrame = 0;

    bool operator==(const CameraFrame& other) const;

    /// What the camera sees at `now`, a time of the host's clock.
    static CameraFrame live(const CameraState& state, const SensorNoise& noise, qint64 now);
    /// The frame with this number in the memory.
    static CameraFrame recorded(const CameraState& state, const SensorNoise& noise, const Recording& recording,
                                int frame);
};
