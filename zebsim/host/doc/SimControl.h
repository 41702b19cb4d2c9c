#pragma once

#include "DOC_Control.h"

class Camera;
struct DocContext;

/// Settings and state of a camera. What its list of devices
/// knows of a camera, as name and address, is known of one that is not connected, too.
class SimControl : public DOC_Control {
public:
    SimControl(Camera& camera, const DocContext& context) : m_camera(camera), m_context(context) {}

    QString getCameraName(int mode) const override;
    void setCameraName(const QString& name) override;
    QString getAddress(int mode) const override;
    QString getDeviceAlias(int mode) const override;
    QString getDeviceName(int mode) const override;
    int getHeadNumber() const override;
    bool isDummy() const override;
    int getWifiState() const override;
    int getLinkSpeedState() const override;
    int getCameraType() const override;
    int getCameraStatus() const override;
    bool isFunctionSupported(int function, int mode) const override;
    bool isMultiHead() const override;
    bool hasSyncStatus() const override;
    QString getSyncStatusText() const override;
    int getExposureTimingClass() const override;
    int getExposureDelayClass() const override;
    int isDualSlopeShutter() const override;
    bool isAutoExposure() const override;
    QList<int> getPortList(int mode) const override;
    int getPortSignal(int index) const override;
    bool isIrigEnabled() const override;
    int getIrigTimeStampPosition() const override;
    bool isIrigSync() const override;
    unsigned int getRecordRate(int head) const override;
    QList<unsigned int> getRecordRateList() const override;
    QSize getResolution() const override;
    QList<QSize> getResolutionList() const override;
    int getShutterSpeed() const override;
    QList<int> getShutterSpeedList(int list) const override;
    QStringList getShutterSpeedEntries() const override;
    int getTriggerMode() const override;
    QList<int> getTriggerModeList() const override;
    zeb::ManualTriggerParameters getManualTriggerParameters() const override;
    bool getReduceMode(int head) const override;
    bool isLowLightMode() const override;
    int getLowLightType() const override;
    PARTITIONNUMBER getPartitionCount(int mode, int head) const override;
    PARTITIONNUMBER getCurrentPartition(int mode) const override;
    void applyPartition(int mode) override;
    zeb::VariableChannelInfo getVariableChannelInfo(int channel) const override;
    /// Only the partition in use is recorded.
    unsigned int getRecordedRateOfPartition(PARTITIONNUMBER partition) const override;
    unsigned int getRecordedRate() const override;
    bool isTriggerOffsetEnabled() const override;
    int getTriggerOffset() const override;
    int getTriggerOffsetBase() const override;
    void setTriggerOffsetEnabled(bool enabled) override;
    void setTriggerOffset(int frame) override;
    void setSelectRange(int start, int end) override;
    /// Not of a camera that is armed or records, and of none while the host records: nothing may be erased then.
    bool hasRecordedData() const override;
    void eraseRecordedData(int mode) override;

private:
    Camera& m_camera;
    const DocContext& m_context;
};
