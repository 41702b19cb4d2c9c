#pragma once

/// What a document knows as a head of its device. GUI thread.
class DOC_Head {
public:
    virtual ~DOC_Head() = default;

    /// Frames of the recording that are to be kept; 0 without a recording.
    virtual unsigned int getFrameTotal(int mode, int head) const = 0;
    /// The device has loaded a preset: what the host knows of this head is read anew. `mode` is 0.
    virtual void refreshAfterPreset(int mode) = 0;
};
