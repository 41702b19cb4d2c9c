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
};
