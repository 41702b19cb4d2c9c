#pragma once

#include "ZebTypes.h"

/// Recording on the cameras of the host. What commands them may run an event loop, as in `ZebCameraOps`. GUI thread.
class ZebRecorder {
public:
    virtual ~ZebRecorder() = default;

    /// State of the recording that the host has begun, on those of these cameras that take part, a `zeb::RecordStatus`;
    /// any other value is an error as well. Live when there is none, whatever a camera does by itself: that is told by
    /// its own `DOC_Lock::getRecordState`.
    virtual int getRecStatus(const DocKeyList& keys) const = 0;
    /// The same for all cameras of the host.
    virtual int getRecordingState() const = 0;
    /// Whether a connected camera records, in that recording or by itself.
    virtual bool isRecording() const = 0;

    /// Arms the connected cameras: they become ready, by way of waiting for CTS where a camera has that. One that is
    /// armed already takes part as it is, one that records by itself is left alone. The host may ask its user first, as
    /// when images would be lost; when that one refuses, nothing is armed and `PLG_Interface::signalEndRecording` is
    /// raised.
    virtual void startRecReady() = 0;
    /// Gives the cameras that are ready their trigger; those that are not take no part, which the host tells.
    virtual void triggerRecording() = 0;
    /// Ends that recording; what is recorded stays.
    virtual void stopRecording() = 0;
    /// Puts the cameras that take part back to live, and others that are armed or in error; `recording`: from a
    /// recording. They keep what they have of it.
    virtual void cancelRecording(bool recording) = 0;
};
