#pragma once

#include "ZebTypes.h"

#include <optional>

class GatheredFailures;
class ZebHost;
struct SyncState;

/// How a camera is played beside a common signal.
struct FrameSkipChoice {
    /// Signals for a frame of the camera; nothing when the frames come as they are.
    std::optional<int> skip;
    /// The camera is faster than the signal: it can't be recorded in step with it.
    bool tooFast = false;
};

/// `rate` of the camera in frames a second, `frequency` of the signal in hertz; nothing for a rate of 0.
FrameSkipChoice chooseFrameSkip(unsigned int rate, int frequency);

/// Sets the playing of the cameras to the speed of the signal that they are recorded with, or of the master of their
/// chain. False when one of them is too fast for that. A camera that fails keeps no other from it.
bool setDeviceSpeedPlaying(ZebHost& host, const SyncState& sync, const DocList& docs, GatheredFailures& failures);
