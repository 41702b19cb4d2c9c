#pragma once

#include "Recording.h"

#include <QPoint>
#include <QSize>

/// What a camera that is triggered makes of its settings: how many frames it keeps from before the trigger and from
/// then on, how long that takes, and which frames stand in the memory afterwards. Times in milliseconds.
struct RecordSettings {
    /// A `zeb::TriggerMode`.
    int mode = 0;
    /// Frames that the partition holds.
    int capacity = 0;
    /// Frames a second; never 0.
    unsigned int rate = 1;
    /// n of 1/n second.
    int shutter = 0;
    QSize resolution;
    /// Of the manual modes: frames of the memory that are kept for what comes from the trigger on.
    int triggerFrame = 0;
    /// Of the random modes: frames of one trigger, 0 for all that fit, and how often it comes, 0 until the memory is
    /// full. The triggers after the first follow without a pause.
    int randomFrames = 0;
    int randomTimes = 0;
    /// First and last frame to keep, counted from the trigger; both 0, or the end before the start: all.
    QPoint area;

    static RecordSettings of(const CameraState& state, const CameraModel& model);

    int framesBefore() const;
    /// With the trigger's own.
    int framesAfter() const;
    /// From the trigger to the end of a recording that nobody stops.
    qint64 duration() const;
    /// What stands in the memory when the camera was ready for `ready` before the trigger and recorded for `recorded`
    /// after it. Nothing when it has no frame of the area.
    std::optional<Recording> recording(qint64 ready, qint64 recorded) const;

private:
    qint64 framesIn(qint64 ms) const;
    /// Frames of one random trigger, and of all of them.
    int randomGroup() const;
    int randomTotal() const;
};
