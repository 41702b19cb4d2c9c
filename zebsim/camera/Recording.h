#pragma once

#include "CustomInfo.h"
#include "ZebTypes.h"

#include <QSize>

#include <memory>
#include <optional>

class RecordedPictures;
struct CameraModel;
struct CameraState;

/// What a camera has in its memory, or what it had there when it was saved to files.
struct Recording {
    /// Frames a second.
    unsigned int rate = 0;
    /// n of 1/n second.
    int shutter = 0;
    /// Of its frames, in pixels.
    QSize resolution;
    int first = 0;
    int last = 0;
    /// Frame at which the trigger came.
    int trigger = 0;
    /// Frame that users count from: the trigger's, unless the zero point has been moved.
    int zero = 0;
    /// Tells it from any other that a camera of this program has kept; 0 when nobody has recorded it.
    quint64 serial = 0;
    /// Tells it from any other anywhere; empty when nobody has recorded it.
    QString shoot;
    /// What is to be kept: first <= selectedFirst <= selectedLast <= last.
    int selectedFirst = 0;
    int selectedLast = 0;
    /// All that is to be kept stands in files.
    bool saved = false;
    /// The list that it was made with, or has been given since.
    CustomInfo customInfo;
    /// The partition that it lies in.
    PARTITIONNUMBER partition = 1;
    /// Null for what lies in the memory of a camera.
    std::shared_ptr<const RecordedPictures> pictures;

    /// What the state does not tell is as a recording with the camera's settings would be: it fills the memory and is
    /// kept whole. Nothing when nothing is recorded.
    static std::optional<Recording> of(const CameraState& state, const CameraModel& model);

    unsigned int frameCount() const { return static_cast<unsigned int>(last - first + 1); }
    unsigned int selectedCount() const { return static_cast<unsigned int>(selectedLast - selectedFirst + 1); }
};
