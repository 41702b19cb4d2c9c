#pragma once

#include <optional>

class ZebHost;

/// What the default settings say of each camera.
struct CameraDefaults {
    /// Reads the preferences; nothing where the settings leave the camera as it is.
    static CameraDefaults read(const ZebHost& host);

    /// A `zeb::TriggerMode`; its parameters are read where it is applied.
    std::optional<int> triggerMode;
    /// Signals at the inputs.
    std::optional<int> triggerSwIn;
    std::optional<int> triggerIn;
    bool resolutionLock = false;
    bool shutterSpeedLock = false;
    int lowLightType = 0;
};
