#pragma once

#include "ZebTypes.h"

/// Recording on the cameras of the host. GUI thread.
class ZebRecorder {
public:
    virtual ~ZebRecorder() = default;

    /// State of the recording on these cameras, a `zeb::RecordStatus`; any other value is an error as well.
    virtual int getRecStatus(const DocKeyList& keys) const = 0;
    /// The same for all cameras of the host.
    virtual int getRecordingState() const = 0;
    virtual bool isRecording() const = 0;

    /// Arms the connected cameras: they become ready, by way of waiting for CTS where a camera has that.
    virtual void startRecReady() = 0;
    /// Gives the cameras that are ready their trigger.
    virtual void triggerRecording() = 0;
    /// Ends a recording that runs; what is recorded stays.
    virtual void stopRecording() = 0;
    /// Puts the cameras back to live; `recording`: from a recording. They keep what they have of it.
    virtual void cancelRecording(bool recording) = 0;
};
