#pragma once

#include "ZebTypes.h"

#include <QString>
#include <QStringList>

class DOC_Activity;
class DOC_Control;
class DOC_Frames;
class DOC_Head;
class DOC_Image;
class DOC_Lock;
class DOC_Network;
class DOC_Storage;

/// A camera, or one head of a camera with several.
///
/// What holds for all its topics: a call on a connected document may ask the camera and then takes the
/// camera's latency; it throws what derives from `std::exception` when the camera does not answer. A document
/// that is not connected answers no camera calls: test `isConnected` first. GUI thread unless said otherwise.
///
/// "Loops": the call may also be made on other threads, on each document by one of them at a time. The caller has
/// fetched the documents on the GUI thread and waits there until all have ended, in an event loop of its own or
/// without one. It calls nothing of `ZebHost` in the loop.
class DOC_Interface {
public:
    virtual ~DOC_Interface() = default;

    /// Topics; each lives as long as the document and none throws. Loops.
    virtual DOC_Activity& activity() = 0;
    virtual DOC_Lock& lock() = 0;
    virtual DOC_Frames& frames() = 0;
    virtual DOC_Image& image() = 0;
    virtual DOC_Control& control() = 0;
    virtual DOC_Head& head() = 0;
    virtual DOC_Storage& storage() = 0;
    virtual DOC_Network& network() = 0;

    /// Loops.
    virtual DOCKEY getKey() const = 0;
    /// Whether the host is connected to the camera. Loops.
    virtual bool isConnected() const = 0;
    /// Whether the user has selected it in the host; commands without a list of cameras go to the selected ones.
    virtual bool isSelected() const = 0;
    /// Whether the mobile device is the current medium.
    virtual bool isMobileSelected() const = 0;
    /// Whether the medium of that kind is the current one.
    virtual bool isSdSelected() const = 0;
    virtual bool isQuikDriveSelected() const = 0;
    virtual bool isCFastSelected() const = 0;
    /// The document of the device that this head belongs to; null when it has none.
    virtual DOC_Interface* getParentDoc() const = 0;

    /// The device of the camera `key`, this one, is about to start anew, so that nobody takes it for lost. `mode` is 0.
    virtual void markRebooting(int mode, DOCKEY key) = 0;
    /// What the user knows the camera by.
    virtual QString getDisplayName() const = 0;

    /// The documents of all heads of the device, the master first; null for one that is gone.
    virtual DocList getHeadDocs(int mode) = 0;

    /// Heads of the device.
    virtual int getHeadCount() const = 0;
    /// Of a document that was read from a file: its path; empty for a camera.
    virtual QString getSourceFilePath() const = 0;
    /// What the document was called before anybody gave it another name.
    virtual QString getOriginalName() const = 0;
    /// Whether its images lie in the memory of a camera.
    virtual bool isMemoryData() const = 0;

    /// The partitions that hold a recording, in their order.
    virtual QList<PARTITIONNUMBER> getPartitionList() const = 0;
    /// Name of a memory partition, from 1.
    virtual QString getPartitionName(PARTITIONNUMBER partition) const = 0;
    /// What is wrong with the camera, a text each; empty when nothing is.
    virtual QStringList getAlerts() const = 0;
    /// Text of a shutter speed as the user has chosen to see it. `value` as in the shutter list in use.
    virtual QString formatShutterSpeed(int value, int head) const = 0;
};
