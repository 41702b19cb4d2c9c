#pragma once

#include "ZebTypes.h"

#include <optional>

class ZebHost;

/// What the default settings say of each camera.
struct CameraDefaults {
    /// Reads the preferences; nothing where the settings leave the camera as it is.
    static CameraDefaults read(ZebHost& host);

    /// A `zeb::TriggerMode`, and its parameters.
    std::optional<int> triggerMode;
    zeb::TriggerSettings trigger;
    /// Signals at the inputs.
    std::optional<int> triggerSwIn;
    std::optional<int> triggerIn;
    bool resolutionLock = false;
    bool shutterSpeedLock = false;
    int lowLightType = 0;
};
