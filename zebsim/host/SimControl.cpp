#include "host/SimControl.h"

#include "camera/Camera.h"
#include "host/DocContext.h"
#include "host/Journal.h"
#include "host/ShutterText.h"
#include "signals/SyncSignal.h"

#include <algorithm>

QString SimControl::getCameraName(int /*mode*/) const {
    m_camera.query("getCameraName");
    return m_camera.name();
}

void SimControl::setCameraName(const QString& name) {
    m_context.journal.record("DOC_Control::setCameraName", {m_camera.key(), name});
    m_camera.setName(name);
}

QString SimControl::getAddress(int /*mode*/) const {
    m_camera.query("getAddress");
    return m_camera.device().address();
}

QString SimControl::getDeviceAlias(int /*mode*/) const {
    m_camera.query("getDeviceAlias");
    return m_camera.get(&CameraState::alias);
}

QString SimControl::getDeviceName(int /*mode*/) const {
    m_camera.query("getDeviceName");
    return m_camera.model().name;
}

int SimControl::getHeadNumber() const {
    m_camera.query("getHeadNumber");
    const auto& heads = m_camera.device().heads();
    const auto self =
        std::find_if(heads.begin(), heads.end(), [this](const auto& head) { return head.get() == &m_camera; });
    return int(self - heads.begin()) + 1;
}

bool SimControl::isDummy() const {
    m_camera.query("isDummy");
    return m_camera.model().dummy;
}

int SimControl::getWifiState() const {
    m_camera.query("getWifiState");
    return m_camera.get(&CameraState::wifi) ? 1 : 0;
}

int SimControl::getLinkSpeedState() const {
    m_camera.query("getLinkSpeedState");
    return m_camera.get(&CameraState::slowLink) ? 1 : 0;
}

int SimControl::getCameraType() const {
    m_camera.queryConnected("getCameraType");
    return m_camera.model().type;
}

int SimControl::getCameraStatus() const {
    m_camera.queryConnected("getCameraStatus");
    return m_camera.get(&CameraState::status);
}

bool SimControl::isFunctionSupported(int function, int /*mode*/) const {
    m_camera.query("isFunctionSupported");
    return m_camera.model().functions.contains(function);
}

bool SimControl::isMultiHead() const {
    m_camera.query("isMultiHead");
    return m_camera.device().heads().size() > 1;
}

bool SimControl::hasSyncStatus() const {
    m_camera.queryConnected("hasSyncStatus");
    return m_camera.model().hasSyncStatus;
}

QString SimControl::getSyncStatusText() const {
    m_camera.queryConnected("getSyncStatusText");
    return m_context.sync.statusOf(m_camera);
}

int SimControl::getExposureTimingClass() const {
    m_camera.queryConnected("getExposureTimingClass");
    return m_camera.model().exposureTiming;
}

int SimControl::getExposureDelayClass() const {
    m_camera.queryConnected("getExposureDelayClass");
    return m_camera.model().exposureDelay;
}

int SimControl::isDualSlopeShutter() const {
    m_camera.queryConnected("isDualSlopeShutter");
    return m_camera.get(&CameraState::dualSlope);
}

bool SimControl::isAutoExposure() const {
    m_camera.queryConnected("isAutoExposure");
    return m_camera.get(&CameraState::autoExposure);
}

QList<int> SimControl::getPortList(int /*mode*/) const {
    m_camera.queryConnected("getPortList");
    return m_camera.model().ports.keys();
}

int SimControl::getPortSignal(int index) const {
    m_camera.queryConnected("getPortSignal");
    return m_camera.model().ports.values().value(index - 1);
}

bool SimControl::isIrigEnabled() const {
    m_camera.queryConnected("isIrigEnabled");
    return m_camera.get(&CameraState::irig);
}

int SimControl::getIrigTimeStampPosition() const {
    m_camera.queryConnected("getIrigTimeStampPosition");
    return m_camera.get(&CameraState::irigStampAtEnd) ? 1 : 0;
}

bool SimControl::isIrigSync() const {
    m_camera.queryConnected("isIrigSync");
    return m_camera.get(&CameraState::irigSync);
}

unsigned int SimControl::getRecordRate(int /*head*/) const {
    m_camera.queryConnected("getRecordRate");
    return m_camera.get(&CameraState::rate);
}

QList<unsigned int> SimControl::getRecordRateList() const {
    m_camera.queryConnected("getRecordRateList");
    return m_camera.model().rates;
}

QSize SimControl::getResolution() const {
    m_camera.queryConnected("getResolution");
    return m_camera.get(&CameraState::resolution);
}

QList<QSize> SimControl::getResolutionList() const {
    m_camera.queryConnected("getResolutionList");
    return m_camera.model().resolutions;
}

int SimControl::getShutterSpeed() const {
    m_camera.queryConnected("getShutterSpeed");
    return ShutterText::valueIn(ShutterText(m_context.prefs).list(), m_camera.get(&CameraState::shutter));
}

QList<int> SimControl::getShutterSpeedList(int list) const {
    m_camera.queryConnected("getShutterSpeedList");
    QList<int> speeds;
    for (const int fraction : m_camera.model().shutters) {
        speeds.append(ShutterText::valueIn(list, fraction));
    }
    return speeds;
}

QStringList SimControl::getShutterSpeedEntries() const {
    m_camera.queryConnected("getShutterSpeedEntries");
    const ShutterText text(m_context.prefs);
    QStringList entries;
    for (const int fraction : m_camera.model().shutters) {
        entries.append(text.entry(fraction));
    }
    return entries;
}

int SimControl::getTriggerMode() const {
    m_camera.queryConnected("getTriggerMode");
    return m_camera.get(&CameraState::triggerMode);
}

QList<int> SimControl::getTriggerModeList() const {
    m_camera.queryConnected("getTriggerModeList");
    return m_camera.model().triggerModes;
}

zeb::ManualTriggerParameters SimControl::getManualTriggerParameters() const {
    m_camera.queryConnected("getManualTriggerParameters");
    zeb::ManualTriggerParameters parameters;
    parameters.triggerFrame = m_camera.get(&CameraState::triggerFrame);
    return parameters;
}

bool SimControl::getReduceMode(int /*head*/) const {
    m_camera.queryConnected("getReduceMode");
    return m_camera.get(&CameraState::reduce);
}

bool SimControl::isLowLightMode() const {
    m_camera.queryConnected("isLowLightMode");
    return m_camera.get(&CameraState::lowLight);
}

int SimControl::getLowLightType() const {
    m_camera.queryConnected("getLowLightType");
    return m_camera.get(&CameraState::lowLightType);
}

PARTITIONNUMBER SimControl::getPartitionCount(int /*mode*/, int /*head*/) const {
    m_camera.queryConnected("getPartitionCount");
    return m_camera.get(&CameraState::partitions);
}

PARTITIONNUMBER SimControl::getCurrentPartition(int /*mode*/) const {
    m_camera.queryConnected("getCurrentPartition");
    return m_camera.get(&CameraState::partition);
}

void SimControl::applyPartition(int mode) {
    m_context.journal.record("DOC_Control::applyPartition", {m_camera.key(), mode});
    m_camera.instructConnected("applyPartition");
}

zeb::VariableChannelInfo SimControl::getVariableChannelInfo(int channel) const {
    m_camera.queryConnected("getVariableChannelInfo");
    const QString text = m_camera.get(&CameraState::variableChannels).value(channel - 1);
    return {text, !text.isEmpty()};
}

unsigned int SimControl::getRecordedRateOfPartition(PARTITIONNUMBER partition) const {
    m_camera.queryConnected("getRecordedRateOfPartition");
    const auto recording = m_camera.recordingOf(partition);
    return recording ? recording->rate : 0;
}

unsigned int SimControl::getRecordedRate() const {
    m_camera.queryConnected("getRecordedRate");
    const auto recording = m_camera.recording();
    return recording ? recording->rate : 0;
}

bool SimControl::isTriggerOffsetEnabled() const {
    m_camera.queryConnected("isTriggerOffsetEnabled");
    return m_camera.get(&CameraState::triggerOffsetEnabled);
}

int SimControl::getTriggerOffset() const {
    m_camera.queryConnected("getTriggerOffset");
    return m_camera.get(&CameraState::triggerOffset);
}

int SimControl::getTriggerOffsetBase() const {
    m_camera.queryConnected("getTriggerOffsetBase");
    const auto recording = m_camera.recording();
    return recording ? recording->trigger : 0;
}

void SimControl::setTriggerOffsetEnabled(bool enabled) {
    m_context.journal.record("DOC_Control::setTriggerOffsetEnabled", {m_camera.key(), enabled});
    m_camera.instructConnected("setTriggerOffsetEnabled");
    m_camera.set(&CameraState::triggerOffsetEnabled, enabled);
}

void SimControl::setTriggerOffset(int frame) {
    m_context.journal.record("DOC_Control::setTriggerOffset", {m_camera.key(), frame});
    m_camera.instructConnected("setTriggerOffset");
    m_camera.set(&CameraState::triggerOffset, frame);
}

void SimControl::setSelectRange(int start, int end) {
    m_context.journal.record("DOC_Control::setSelectRange", {m_camera.key(), start, end});
    m_camera.instructConnected("setSelectRange");
    m_camera.set(&CameraState::selectedRange, {start, end});
}

bool SimControl::hasRecordedData() const {
    m_camera.queryConnected("hasRecordedData");
    return m_camera.get(&CameraState::recorded);
}

void SimControl::eraseRecordedData(int mode) {
    m_context.journal.record("DOC_Control::eraseRecordedData", {m_camera.key(), mode});
    m_camera.eraseRecordedData();
}
