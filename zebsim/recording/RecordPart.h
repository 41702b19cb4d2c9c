#pragma once

#include "RecordSettings.h"
#include "ZebTypes.h"

#include <memory>

class Camera;

/// What a recording makes of a camera that takes part. Where the camera stands is its own `recordState`. Times in
/// milliseconds.
struct RecordPart {
    RecordPart(std::shared_ptr<Camera> taken, qint64 now);

    std::shared_ptr<Camera> camera;
    RecordSettings settings;
    /// The camera's, when it was taken in.
    CustomInfo customInfo;
    /// In use when the camera was taken in, and from the trigger on the one that it records into.
    PARTITIONNUMBER partition = 1;
    qint64 readyAt = 0;
    qint64 triggeredAt = 0;
    bool triggered = false;
    bool over = false;

    bool waits() const { return !over && !triggered; }
    /// The trigger has come. `withAreas`: the camera keeps its record area alone.
    void begin(qint64 now, bool withAreas);
    /// When the memory is full.
    qint64 fullAt() const { return triggeredAt + settings.duration(); }
    /// What the camera has recorded until `now`; nothing when it has no frame of its area.
    std::optional<Recording> recording(qint64 now) const;
    /// The camera has it in its memory.
    bool isKept() const;
};
