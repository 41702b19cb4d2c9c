#pragma once

#include "ZebTypes.h"

/// Recorded frames of a document's current partition. GUI thread.
class DOC_Frames {
public:
    virtual ~DOC_Frames() = default;

    /// Frames that a recording takes with the present settings in live mode, recorded frames otherwise. `partition` 0
    /// is the one in use.
    virtual unsigned int getFrameCount(int partition, int head) const = 0;
    /// Of a partition, whichever is in use; all 0 when it holds nothing.
    virtual zeb::RecordedData getRecordedData(PARTITIONNUMBER partition) const = 0;
    /// Numbers of the first and the last recorded frame.
    virtual int getFirstFrame(int partition, int head) const = 0;
    virtual int getLastFrame(int partition, int head) const = 0;
    /// Number of the frame that the user counts from: the one at which the trigger came, or the zero point that
    /// `DOC_Control::setTriggerOffset` has put in its place.
    virtual int getTriggerFrame(int head) const = 0;
    /// The part of the recording that is to be kept: first <= start <= end <= last.
    virtual int getSelectStartFrame(int head) const = 0;
    virtual int getSelectEndFrame(int head) const = 0;
    /// Whether the recording is being played.
    virtual bool isPlaying() const = 0;
    /// Whether the user has marked the recording as looked through.
    virtual bool isRecordCheck() const = 0;
    virtual void setRecordCheck(bool check) = 0;

    /// While a camera is played in step with a faster signal, it shows a frame of its own for this many of the signal.
    virtual bool isFrameSkipEnabled() const = 0;
    virtual void setFrameSkipEnabled(bool enabled) = 0;
    /// How the frames are counted; 0, by the signal.
    virtual void setFrameSkipMode(int mode) = 0;
    virtual int getFrameSkip() const = 0;
    virtual void setFrameSkip(int frames) = 0;

    /// First and last frame that a recording is to keep, counted from the trigger.
    virtual void setRecordAreaStart(int frame) = 0;
    virtual void setRecordAreaEnd(int frame) = 0;
};
