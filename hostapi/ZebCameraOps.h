#pragma once

#include "ZebTypes.h"

/// Operations on many cameras at once. GUI thread.
///
/// Each call goes to every camera of its list, side by side. Those that fail do not keep it from the others; they are
/// gathered, and one exception at the end names each camera with its reason. While slow cameras take a command the host
/// may run an event loop: documents are to be fetched anew after each. A user who cancels a command leaves out the
/// cameras that it has not reached: a `ZebLeftOut`, after which a further command of the same work is not theirs.
class ZebCameraOps {
public:
    virtual ~ZebCameraOps() = default;

    /// Look for cameras: at the addresses that differ from `address` in the last octet only, in the whole network, and
    /// once more for those that are known. Back when the search has ended.
    virtual void searchCamera(const QString& address) = 0;
    virtual void discoverCameras() = 0;
    virtual void updateCameras() = 0;

    /// Sets the record rate, in frames a second.
    virtual void setRecordRate(const DocList& docs, unsigned int rate) = 0;
    /// n of 1/n second.
    virtual void setShutterSpeed(const DocList& docs, int speed) = 0;
    /// In pixels.
    virtual void setResolution(const DocList& docs, int width, int height) = 0;
    /// The trigger parameters that the user has set in the host.
    virtual zeb::TriggerSettings getTriggerSettings() const = 0;
    /// A `zeb::TriggerMode` with its parameters.
    virtual void setTriggerMode(const DocList& docs, int kind, int mode, int reserved1, int reserved2,
                                float manualBeforePercent, int randomFrames, int randomTimes) = 0;
    /// Whether a random trigger comes a set number of times.
    virtual void setRandomTriggerPhase(const DocList& docs, bool counted) = 0;
    virtual void setReduceMode(const DocList& docs, bool on) = 0;
    virtual void setLowLight(const DocList& docs, bool on) = 0;
    /// A `zeb::LowLightType`.
    virtual void setLowLightType(const DocList& docs, int type) = 0;

    /// Whether these cameras can be put on one signal now.
    virtual bool canSync(const DocList& docs) = 0;
    /// Puts the cameras on one signal, in the order of the list; `master` leads a chain. Takes long, and is called from
    /// a worker thread: the host keeps the documents alive until it returns, and tells the user itself what failed.
    /// `lport` a `zeb::SyncPort`, `input` 0 for "ON CAM POS" and 1 for "ON OTHERS POS" on the cameras' ports,
    /// `frequency` in Hertz or -1, `polarity` 0 for a rising trigger and 1 for a falling one.
    virtual void syncCameras(const DocList& docs, DOC_Interface* master, int lport, bool external, bool generator,
                             int input, int frequency, int polarity) = 0;

    /// The partition of the selected cameras, from 1.
    virtual void setPartition(PARTITIONNUMBER number, int mode) = 0;
    /// The channel of variable settings that the current camera uses; 0 for none.
    virtual unsigned int getCurrentVariable() const = 0;
    virtual void setVariable(unsigned int channel) = 0;
    /// Brings the cameras to rest before the preferences are changed: none stays armed.
    virtual void stopForPrefs() = 0;

    /// Whether a selected camera is in low light mode, whether any camera is, and whether all that know the mode
    /// have it on, or off.
    virtual bool isLowlight() const = 0;
    virtual bool existLowlight() const = 0;
    virtual bool isAllLowlight(bool on) const = 0;
    /// Whether a connected camera is in low light mode, in which its settings are not those to be kept. Asks the
    /// cameras alone, where `existLowlight` may tell a state of the host too.
    virtual bool hasLowLightCamera() const = 0;
    virtual bool isLensCalibration() const = 0;
    /// Whether a camera saves straight to its own medium.
    virtual bool isDirectSaving(int mode) const = 0;
    /// Whether the table has locked every camera.
    virtual bool isAllWrenLockDevice() const = 0;
};
