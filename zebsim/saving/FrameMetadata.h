#pragma once

#include "CameraFrame.h"
#include "CustomInfo.h"

#include <QString>

#include <optional>

struct CameraState;
struct Recording;

/// When a frame was taken.
struct FrameTimestamp {
    /// As an operator sees it.
    qint64 number = 0;
    /// Microseconds from the trigger; nothing in a live image.
    std::optional<qint64> time;
};

/// What is known of a frame, or of all the frames of a video.
struct FrameMetadata {
    QString camera;
    /// Frames a second, n of 1/n second.
    unsigned int rate = 0;
    int shutter = 0;
    FrameTimestamp first;
    /// Of a video only.
    std::optional<FrameTimestamp> last;
    CustomInfo info;

    static FrameMetadata live(const CameraState& state, const CameraFrame& frame);
    static FrameMetadata recorded(const Recording& recording, const CameraFrame& frame);
};
