#pragma once

#include "CameraBank.h"
#include "DOC_Control.h"
#include "DocTopic.h"

/// Settings and state of a camera. What its list of devices knows of a camera, as name and address, is known of one
/// that is not connected, too.
class SimControl : public DocTopic<DOC_Control> {
public:
    using DocTopic::DocTopic;

    QString getCameraName(int /*mode*/) const override { return ask(OPERATION("getCameraName"), &CameraState::name); }
    void setCameraName(const QString& name) override { note("DOC_Control::setCameraName", {name}).setName(name); }
    QString getAddress(int /*mode*/) const override { return ask(OPERATION("getAddress")).device().address(); }
    QString getDeviceAlias(int /*mode*/) const override {
        return ask(OPERATION("getDeviceAlias"), &CameraState::alias);
    }
    QString getDeviceName(int /*mode*/) const override { return ask(OPERATION("getDeviceName"), &CameraModel::name); }
    int getDeviceNumber() const override { return m_host.cameras.deviceNumberOf(m_camera); }
    int getHeadNumber() const override { return ask(OPERATION("getHeadNumber")).headNumber(); }
    bool isDummy() const override { return ask(OPERATION("isDummy"), &CameraModel::dummy); }
    int getWifiState() const override { return ask(OPERATION("getWifiState"), &CameraState::wifi) ? 1 : 0; }
    int getLinkSpeedState() const override {
        return ask(OPERATION("getLinkSpeedState"), &CameraState::slowLink) ? 1 : 0;
    }
    int getCameraType() const override { return askConnected(OPERATION("getCameraType"), &CameraModel::type); }
    int getCameraStatus() const override { return askConnected(OPERATION("getCameraStatus"), &CameraState::status); }
    bool isFunctionSupported(int function, int /*mode*/) const override {
        return ask(OPERATION("isFunctionSupported"), &CameraModel::functions).contains(function);
    }
    bool isMultiHead() const override { return ask(OPERATION("isMultiHead")).device().heads().size() > 1; }
    bool hasSyncStatus() const override {
        return askConnected(OPERATION("hasSyncStatus"), &CameraModel::hasSyncStatus);
    }
    QString getSyncStatusText() const override;
    int getExposureTimingClass() const override {
        return askConnected(OPERATION("getExposureTimingClass"), &CameraModel::exposureTiming);
    }
    int getExposureDelayClass() const override {
        return askConnected(OPERATION("getExposureDelayClass"), &CameraModel::exposureDelay);
    }
    int isDualSlopeShutter() const override {
        return askConnected(OPERATION("isDualSlopeShutter"), &CameraState::dualSlope);
    }
    bool isAutoExposure() const override {
        return askConnected(OPERATION("isAutoExposure"), &CameraState::autoExposure);
    }
    QList<int> getPortList(int /*mode*/) const override {
        return askConnected(OPERATION("getPortList"), &CameraState::ports).keys();
    }
    int getPortSignal(int index) const override {
        return askConnected(OPERATION("getPortSignal"), &CameraState::ports).values().value(index - 1);
    }
    void setPortSignal(int index, int signal) override {
        note("DOC_Control::setPortSignal", {index, signal}).setPortSignal(index, signal);
    }
    bool isIrigEnabled() const override { return askConnected(OPERATION("isIrigEnabled"), &CameraState::irig); }
    int getIrigTimeStampPosition() const override {
        return askConnected(OPERATION("getIrigTimeStampPosition"), &CameraState::irigStampAtEnd) ? 1 : 0;
    }
    bool isIrigSync() const override { return askConnected(OPERATION("isIrigSync"), &CameraState::irigSync); }
    unsigned int getRecordRate(int /*head*/) const override {
        return askConnected(OPERATION("getRecordRate"), &CameraState::rate);
    }
    QList<unsigned int> getRecordRateList() const override {
        return askConnected(OPERATION("getRecordRateList"), &CameraModel::rates);
    }
    QSize getResolution() const override { return askConnected(OPERATION("getResolution"), &CameraState::resolution); }
    QList<QSize> getResolutionList() const override {
        return askConnected(OPERATION("getResolutionList"), &CameraModel::resolutions);
    }
    int getShutterSpeed() const override;
    QList<int> getShutterSpeedList(int list) const override;
    QStringList getShutterSpeedEntries() const override;
    int getTriggerMode() const override { return askConnected(OPERATION("getTriggerMode"), &CameraState::triggerMode); }
    QList<int> getTriggerModeList() const override {
        return askConnected(OPERATION("getTriggerModeList"), &CameraModel::triggerModes);
    }
    zeb::ManualTriggerParameters getManualTriggerParameters() const override;
    bool getReduceMode(int /*head*/) const override {
        return askConnected(OPERATION("getReduceMode"), &CameraState::reduce);
    }
    bool isLowLightMode() const override { return askConnected(OPERATION("isLowLightMode"), &CameraState::lowLight); }
    void setLowLightMode(bool on) override { note("DOC_Control::setLowLightMode", {on}).setLowLightMode(on); }
    int getLowLightType() const override {
        return askConnected(OPERATION("getLowLightType"), &CameraState::lowLightType);
    }
    void setLowLightType(int type) override { note("DOC_Control::setLowLightType", {type}).setLowLightType(type); }
    void setResolutionLock(bool lock) override {
        note("DOC_Control::setResolutionLock", {lock}).setResolutionLock(lock);
    }
    void setShutterSpeedLock(bool lock) override {
        note("DOC_Control::setShutterSpeedLock", {lock}).setShutterSpeedLock(lock);
    }
    PARTITIONNUMBER getPartitionCount(int /*mode*/, int /*head*/) const override {
        return askConnected(OPERATION("getPartitionCount"), &CameraState::partitions);
    }
    PARTITIONNUMBER getCurrentPartition(int /*mode*/) const override {
        return askConnected(OPERATION("getCurrentPartition"), &CameraState::partition);
    }
    void applyPartition(int mode) override { changeConnected(OPERATION("DOC_Control::applyPartition"), {mode}); }
    zeb::VariableChannelInfo getVariableChannelInfo(int channel) const override;
    /// Only the partition in use is recorded.
    unsigned int getRecordedRateOfPartition(PARTITIONNUMBER partition) const override;
    unsigned int getRecordedRate() const override;
    bool isTriggerOffsetEnabled() const override {
        return askConnected(OPERATION("isTriggerOffsetEnabled"), &CameraState::triggerOffsetEnabled);
    }
    int getTriggerOffset() const override {
        return askConnected(OPERATION("getTriggerOffset"), &CameraState::triggerOffset);
    }
    int getTriggerOffsetBase() const override;
    void setTriggerOffsetEnabled(bool enabled) override {
        changeConnected(OPERATION("DOC_Control::setTriggerOffsetEnabled"), {enabled})
            .set(&CameraState::triggerOffsetEnabled, enabled);
    }
    void setTriggerOffset(int frame) override {
        changeConnected(OPERATION("DOC_Control::setTriggerOffset"), {frame}).set(&CameraState::triggerOffset, frame);
    }
    void setSelectRange(int start, int end) override {
        changeConnected(OPERATION("DOC_Control::setSelectRange"), {start, end})
            .set(&CameraState::selectedRange, {start, end});
    }
    zeb::CameraPresetInfo getCameraPresetInfo() const override {
        return askConnected(OPERATION("getCameraPresetInfo")).presetInfo();
    }
    bool presetNeedsReboot() const override {
        return askConnected(OPERATION("presetNeedsReboot"), &CameraModel::presetReboots);
    }
    void loadCameraPreset(int number) override { note("DOC_Control::loadCameraPreset", {number}).loadPreset(number); }
    void saveCameraPreset(int number) override { note("DOC_Control::saveCameraPreset", {number}).savePreset(number); }
    /// Not of a camera that is armed or records, and of none while the host records: nothing may be erased then.
    bool hasRecordedData() const override;
    void eraseRecordedData(int mode) override;
    QList<QVariantMap> getCustomInfoList() const override;
    /// Items as `getCustomInfoList` answers them.
    static QList<QVariantMap> itemsOf(const CustomInfo& info);
    void clearCustomInfo() override;
    /// Throws also for a 65th item.
    void addCustomInfo(const QString& name, const QString& value, const QString& unit, bool display,
                       bool usefilename) override;
    void updateCustomInfo(const QString& name, const QString& value, const QString& unit, bool display,
                          bool usefilename) override;
    void removeCustomInfo(const QString& name) override;
    void renameCustomInfo(const QString& name, const QString& newName) override;

private:
    /// Those of the recording are shown.
    bool showsRecorded() const;
};
