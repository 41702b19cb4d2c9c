#pragma once

#include "ZebTypes.h"

#include <QList>
#include <QSize>
#include <QString>
#include <QStringList>
#include <QVariantMap>

/// Settings and state of a camera. GUI thread; loops where it says so, as `DOC_Interface` tells.
///
/// A getter answers what the camera has, not what was asked of it. `mode` and `head` are the host's: a getter is called
/// with 1 and 0, but `getCameraName` with 0 too, and `getPartitionCount`, `applyPartition` and `eraseRecordedData` with
/// `mode` 0.
class DOC_Control {
public:
    virtual ~DOC_Control() = default;

    /// As the user has named it. Loops.
    virtual QString getCameraName(int mode) const = 0;
    virtual void setCameraName(const QString& name) = 0;
    /// IPv4 address as dotted text.
    virtual QString getAddress(int mode) const = 0;
    /// The device behind the camera: the name that the user gave it, empty for none, and its own.
    virtual QString getDeviceAlias(int mode) const = 0;
    virtual QString getDeviceName(int mode) const = 0;
    /// Place of the device among all of the host, from 0; it keeps it while it is away.
    virtual int getDeviceNumber() const = 0;
    /// Place of the head in its device, from 1.
    virtual int getHeadNumber() const = 0;
    /// Whether the document stands for a camera that is not there.
    virtual bool isDummy() const = 0;
    /// 1 when the camera is reached by radio, and when its link is slower than it should be.
    virtual int getWifiState() const = 0;
    virtual int getLinkSpeedState() const = 0;
    /// Number of the camera's type; the types fall into classes by what their ports are for. Loops.
    virtual int getCameraType() const = 0;
    /// A `zeb::CameraStatus`; other values are states without a name.
    virtual int getCameraStatus() const = 0;
    /// Whether the camera can do a `zeb::CameraFunction`. Loops.
    virtual bool isFunctionSupported(int function, int mode) const = 0;
    /// Whether the document is a head of a device with several.
    virtual bool isMultiHead() const = 0;

    /// Whether the camera knows the state of its sync input.
    virtual bool hasSyncStatus() const = 0;
    /// State of the signal on the sync input, as "Sync In".
    virtual QString getSyncStatusText() const = 0;

    /// What the camera's exposure is to a common signal: `zeb::ExposureTimingLeads` or another class, and whether it
    /// comes with a delay, not 0.
    virtual int getExposureTimingClass() const = 0;
    virtual int getExposureDelayClass() const = 0;
    /// Not 0 while the camera blends two exposures.
    virtual int isDualSlopeShutter() const = 0;
    /// Whether the camera chooses its exposure itself.
    virtual bool isAutoExposure() const = 0;

    /// Numbers of the ports that the camera has. Loops.
    virtual QList<int> getPortList(int mode) const = 0;
    /// The `zeb::PortSignal` on the port that stands at `index` in the list, counted from 1.
    virtual int getPortSignal(int index) const = 0;
    /// Puts another one there. Loops.
    virtual void setPortSignal(int index, int signal) = 0;

    /// Whether recorded frames are stamped with IRIG time.
    virtual bool isIrigEnabled() const = 0;
    /// 0 start of the exposure, else its end.
    virtual int getIrigTimeStampPosition() const = 0;
    /// Whether the camera records in step with the IRIG signal.
    virtual bool isIrigSync() const = 0;

    /// Rate at which head `head` records, in frames a second.
    virtual unsigned int getRecordRate(int head) const = 0;
    virtual QList<unsigned int> getRecordRateList() const = 0;
    /// Width and height in pixels.
    virtual QSize getResolution() const = 0;
    virtual QList<QSize> getResolutionList() const = 0;
    /// The speed as it stands in the list that the preference `display/ShutterSpeed` chooses.
    virtual int getShutterSpeed() const = 0;
    /// `list` 1: fractions of a second, 1/n. `list` 2: exposure times in nanoseconds. Entries of one index belong
    /// together.
    virtual QList<int> getShutterSpeedList(int list) const = 0;
    /// Speeds on offer, each "value;label;type".
    virtual QStringList getShutterSpeedEntries() const = 0;
    /// A `zeb::TriggerMode`.
    virtual int getTriggerMode() const = 0;
    /// The modes on offer, each a `zeb::TriggerMode`.
    virtual QList<int> getTriggerModeList() const = 0;
    virtual zeb::ManualTriggerParameters getManualTriggerParameters() const = 0;

    /// Live speed before image quality.
    virtual bool getReduceMode(int head) const = 0;
    /// The mode in which exposures last longer than a frame. It is set on cameras that support it only. Loops.
    virtual bool isLowLightMode() const = 0;
    virtual void setLowLightMode(bool on) = 0;
    /// A `zeb::LowLightType`.
    virtual int getLowLightType() const = 0;
    /// Of cameras that support low light only. Loops.
    virtual void setLowLightType(int type) = 0;

    /// Locks of the camera's own, on its resolution and on its shutter speed. Loops.
    virtual void setResolutionLock(bool lock) = 0;
    virtual void setShutterSpeedLock(bool lock) = 0;

    /// Partitions of the memory, and the one in use, from 1.
    virtual PARTITIONNUMBER getPartitionCount(int mode, int head) const = 0;
    virtual PARTITIONNUMBER getCurrentPartition(int mode) const = 0;
    /// The document follows its camera to the partition now in use.
    virtual void applyPartition(int mode) = 0;
    /// `channel` from 1 to `zeb::VariableChannels`.
    virtual zeb::VariableChannelInfo getVariableChannelInfo(int channel) const = 0;

    /// As `getRecordedRate`, of a partition.
    virtual unsigned int getRecordedRateOfPartition(PARTITIONNUMBER partition) const = 0;
    /// Rate of the recorded frames in frames a second; 0 when there are none.
    virtual unsigned int getRecordedRate() const = 0;
    /// Whether the zero point of the recorded frames has been moved.
    virtual bool isTriggerOffsetEnabled() const = 0;
    /// The moved zero point, and the camera's own, as frame numbers.
    virtual int getTriggerOffset() const = 0;
    virtual int getTriggerOffsetBase() const = 0;
    /// Whether the zero point is moved, and to which frame number.
    virtual void setTriggerOffsetEnabled(bool enabled) = 0;
    virtual void setTriggerOffset(int frame) = 0;
    /// The frames to keep of what is recorded, as frame numbers: first <= start <= end <= last.
    virtual void setSelectRange(int start, int end) = 0;
    /// Presets: settings that the device keeps itself, those of all its heads together, by numbers from 1. One that
    /// `presetNeedsReboot` takes effect only when the device has been started anew. Loading and saving take the
    /// device's time, and throw for a number that it does not have.
    virtual zeb::CameraPresetInfo getCameraPresetInfo() const = 0;
    virtual bool presetNeedsReboot() const = 0;
    virtual void loadCameraPreset(int number) = 0;
    virtual void saveCameraPreset(int number) = 0;

    /// Whether the partition in use holds a recording; what erases it.
    virtual bool hasRecordedData() const = 0;
    virtual void eraseRecordedData(int mode) = 0;

    /// The list of custom information: while recorded images are shown that of the recording, else the one that goes
    /// with the next. An item is a map of the texts `name`, `value` and `unit` and of the flags `display`, it is shown,
    /// and `usefilename`, it may stand in names of files: a flag is the text "on" when it is set, else empty. Names are
    /// compared exactly; an item that is not there can be changed and removed without effect.
    virtual QList<QVariantMap> getCustomInfoList() const = 0;
    virtual void clearCustomInfo() = 0;
    /// At the end of the list, or in the place of the item of that name.
    virtual void addCustomInfo(const QString& name, const QString& value, const QString& unit, bool display,
                               bool usefilename) = 0;
    virtual void updateCustomInfo(const QString& name, const QString& value, const QString& unit, bool display,
                                  bool usefilename) = 0;
    virtual void removeCustomInfo(const QString& name) = 0;
    /// Throws when another item has the new name.
    virtual void renameCustomInfo(const QString& name, const QString& newName) = 0;
};
