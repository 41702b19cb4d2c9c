#pragma once

/// Ports of a camera's inputs; they differ from one class of cameras to the other.
struct InputPorts {
    /// No camera has a port of this number.
    static constexpr int None = 0;

    /// By `DOC_Control::getCameraType`.
    static InputPorts of(int cameraType);

    int externalSync;
    /// The name of the sync input comes from its signal and that of the polarity port.
    bool refined;
    int triggerIn;
    int triggerSwIn;
};
