#pragma once

/// Recorded frames of a document's current partition. GUI thread.
class DOC_Frames {
public:
    virtual ~DOC_Frames() = default;

    /// Frames that a recording takes with the present settings in live mode, recorded frames otherwise.
    virtual unsigned int getFrameCount(int partition, int head) const = 0;
    /// Whether the recording is marked for saving.
    virtual bool isRecordCheck() const = 0;
    virtual void setRecordCheck(bool check) = 0;
};
