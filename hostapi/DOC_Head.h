#pragma once

#include "ZebTypes.h"

class QDateTime;

/// What a document knows as a head of its device. GUI thread.
class DOC_Head {
public:
    virtual ~DOC_Head() = default;

    /// Devices that the host knows.
    virtual int getDeviceCount() const = 0;
    /// What the host adds to the name of a file with images of a partition. `type` is a `zeb::FileType`;
    /// `session` counts the saves that would otherwise write one name, from 1.
    virtual zeb::FileNameDetails getFileNameDetails(int type, PARTITIONNUMBER partition, int session,
                                                    const QDateTime& time) const = 0;
    /// Frames of the recording that are to be kept; 0 without a recording.
    virtual unsigned int getFrameTotal(int mode, int head) const = 0;
    /// The device has loaded a preset: what the host knows of this head is read anew. `mode` is 0.
    virtual void refreshAfterPreset(int mode) = 0;
};
