#pragma once

#include "DOC_Control.h"
#include "DOC_Frames.h"
#include "DOC_Image.h"
#include "FakeDoc.h"

#include <QMap>
#include <QSet>

/// A camera that answers from its public members.
class FakeControl : public DOC_Control {
public:
    QString name;
    QString address;
    QString alias;
    QString deviceName;
    int head = 1;
    bool dummy = false;
    int wifi = 0;
    int linkSpeed = 0;
    QSet<int> functions;
    unsigned int rate = 0;
    QMap<PARTITIONNUMBER, unsigned int> recordedRates;
    /// It does not answer any more when it is asked for its functions.
    bool silent = false;

    QString getCameraName(int) const override { return name; }
    void setCameraName(const QString&) override {}
    QString getAddress(int) const override { return address; }
    QString getDeviceAlias(int) const override { return alias; }
    QString getDeviceName(int) const override { return deviceName; }
    int getHeadNumber() const override { return head; }
    bool isDummy() const override { return dummy; }
    int getWifiState() const override { return wifi; }
    int getLinkSpeedState() const override { return linkSpeed; }
    bool isFunctionSupported(int function, int) const override {
        if (silent) throw std::runtime_error("camera is silent");
        return functions.contains(function);
    }
    unsigned int getRecordRate(int) const override { return rate; }
    unsigned int getRecordedRateOfPartition(PARTITIONNUMBER partition) const override {
        return recordedRates.value(partition);
    }

    int getCameraType() const override { return {}; }
    int getCameraStatus() const override { return {}; }
    bool isMultiHead() const override { return {}; }
    bool hasSyncStatus() const override { return {}; }
    QString getSyncStatusText() const override { return {}; }
    QList<int> getPortList(int) const override { return {}; }
    int getPortSignal(int) const override { return {}; }
    bool isIrigEnabled() const override { return {}; }
    int getIrigTimeStampPosition() const override { return {}; }
    bool isIrigSync() const override { return {}; }
    QList<unsigned int> getRecordRateList() const override { return {}; }
    QSize getResolution() const override { return {}; }
    QList<QSize> getResolutionList() const override { return {}; }
    int getShutterSpeed() const override { return {}; }
    QList<int> getShutterSpeedList(int) const override { return {}; }
    QStringList getShutterSpeedEntries() const override { return {}; }
    int getTriggerMode() const override { return {}; }
    QList<int> getTriggerModeList() const override { return {}; }
    zeb::ManualTriggerParameters getManualTriggerParameters() const override { return {}; }
    bool getReduceMode(int) const override { return {}; }
    bool isLowLightMode() const override { return {}; }
    int getLowLightType() const override { return {}; }
    PARTITIONNUMBER getPartitionCount(int, int) const override { return {}; }
    PARTITIONNUMBER getCurrentPartition(int) const override { return {}; }
    void applyPartition(int) override {}
    zeb::VariableChannelInfo getVariableChannelInfo(int) const override { return {}; }
    unsigned int getRecordedRate() const override { return {}; }
    bool isTriggerOffsetEnabled() const override { return {}; }
    int getTriggerOffset() const override { return {}; }
    int getTriggerOffsetBase() const override { return {}; }
    bool hasRecordedData() const override { return {}; }
    void eraseRecordedData(int) override {}
};

/// A document with a camera, its frames and its image.
class FakeCamera : public FakeDoc, public DOC_Frames, public DOC_Image {
public:
    using FakeDoc::FakeDoc;

    FakeControl camera;
    bool connected = true;
    bool selected = false;
    bool mobile = false;
    bool playing = false;
    QMap<int, unsigned int> frameCounts;
    std::optional<zeb::ImageFormat> format;

    DOC_Control& control() override { return camera; }
    DOC_Frames& frames() override { return *this; }
    DOC_Image& image() override { return *this; }
    bool isConnected() const override { return connected; }
    bool isSelected() const override { return selected; }
    bool isMobileSelected() const override { return mobile; }

    bool isPlaying() const override { return playing; }
    unsigned int getFrameCount(int partition, int) const override { return frameCounts.value(partition); }
    int getFirstFrame(int, int) const override { return {}; }
    int getLastFrame(int, int) const override { return {}; }
    int getTriggerFrame(int) const override { return {}; }
    int getSelectStartFrame(int) const override { return {}; }
    int getSelectEndFrame(int) const override { return {}; }
    bool isRecordCheck() const override { return {}; }
    void setRecordCheck(bool) override {}

    std::optional<zeb::ImageFormat> getImageFormat(int, int) const override { return format; }
    QString getComment() const override { return {}; }
    void setComment(const QString&) override {}
    QSize getImageSize() const override { return {}; }
    double getScale() const override { return {}; }
    int getBinningPower() const override { return {}; }
    QPoint getPoint() const override { return {}; }
    QRect getToolRect(const QString&) const override { return {}; }
    void setToolRect(const QString&, const QRect&) override {}
    bool isToolChecked(const QString&) const override { return {}; }
};
