#include "SimControl.h"

#include "Camera.h"
#include "CameraBank.h"
#include "CameraError.h"
#include "DocContext.h"
#include "HostCalls.h"
#include "Notices.h"
#include "ShutterText.h"
#include "SimRecorder.h"
#include "SyncSignal.h"
#include "TextKey.h"
#include "Translator.h"

QString SimControl::getCameraName(int /*mode*/) const {
    m_camera.ask(OPERATION("getCameraName"));
    return m_camera.name();
}

void SimControl::setCameraName(const QString& name) {
    m_context.calls.note("DOC_Control::setCameraName", {m_camera.key(), name});
    m_camera.setName(name);
}

QString SimControl::getAddress(int /*mode*/) const {
    m_camera.ask(OPERATION("getAddress"));
    return m_camera.device().address();
}

QString SimControl::getDeviceAlias(int /*mode*/) const {
    m_camera.ask(OPERATION("getDeviceAlias"));
    return m_camera.get(&CameraState::alias);
}

QString SimControl::getDeviceName(int /*mode*/) const {
    m_camera.ask(OPERATION("getDeviceName"));
    return m_camera.model().name;
}

int SimControl::getHeadNumber() const {
    m_camera.ask(OPERATION("getHeadNumber"));
    return m_camera.headNumber();
}

bool SimControl::isDummy() const {
    m_camera.ask(OPERATION("isDummy"));
    return m_camera.model().dummy;
}

int SimControl::getWifiState() const {
    m_camera.ask(OPERATION("getWifiState"));
    return m_camera.get(&CameraState::wifi) ? 1 : 0;
}

int SimControl::getLinkSpeedState() const {
    m_camera.ask(OPERATION("getLinkSpeedState"));
    return m_camera.get(&CameraState::slowLink) ? 1 : 0;
}

int SimControl::getCameraType() const {
    m_camera.askConnected(OPERATION("getCameraType"));
    return m_camera.model().type;
}

int SimControl::getCameraStatus() const {
    m_camera.askConnected(OPERATION("getCameraStatus"));
    return m_camera.get(&CameraState::status);
}

bool SimControl::isFunctionSupported(int function, int /*mode*/) const {
    m_camera.ask(OPERATION("isFunctionSupported"));
    return m_camera.model().functions.contains(function);
}

bool SimControl::isMultiHead() const {
    m_camera.ask(OPERATION("isMultiHead"));
    return m_camera.device().heads().size() > 1;
}

bool SimControl::hasSyncStatus() const {
    m_camera.askConnected(OPERATION("hasSyncStatus"));
    return m_camera.model().hasSyncStatus;
}

QString SimControl::getSyncStatusText() const {
    m_camera.askConnected(OPERATION("getSyncStatusText"));
    return m_context.sync.statusOf(m_camera);
}

int SimControl::getExposureTimingClass() const {
    m_camera.askConnected(OPERATION("getExposureTimingClass"));
    return m_camera.model().exposureTiming;
}

int SimControl::getExposureDelayClass() const {
    m_camera.askConnected(OPERATION("getExposureDelayClass"));
    return m_camera.model().exposureDelay;
}

int SimControl::isDualSlopeShutter() const {
    m_camera.askConnected(OPERATION("isDualSlopeShutter"));
    return m_camera.get(&CameraState::dualSlope);
}

bool SimControl::isAutoExposure() const {
    m_camera.askConnected(OPERATION("isAutoExposure"));
    return m_camera.get(&CameraState::autoExposure);
}

QList<int> SimControl::getPortList(int /*mode*/) const {
    m_camera.askConnected(OPERATION("getPortList"));
    return m_camera.model().ports.keys();
}

int SimControl::getPortSignal(int index) const {
    m_camera.askConnected(OPERATION("getPortSignal"));
    return m_camera.model().ports.values().value(index - 1);
}

bool SimControl::isIrigEnabled() const {
    m_camera.askConnected(OPERATION("isIrigEnabled"));
    return m_camera.get(&CameraState::irig);
}

int SimControl::getIrigTimeStampPosition() const {
    m_camera.askConnected(OPERATION("getIrigTimeStampPosition"));
    return m_camera.get(&CameraState::irigStampAtEnd) ? 1 : 0;
}

bool SimControl::isIrigSync() const {
    m_camera.askConnected(OPERATION("isIrigSync"));
    return m_camera.get(&CameraState::irigSync);
}

unsigned int SimControl::getRecordRate(int /*head*/) const {
    m_camera.askConnected(OPERATION("getRecordRate"));
    return m_camera.get(&CameraState::rate);
}

QList<unsigned int> SimControl::getRecordRateList() const {
    m_camera.askConnected(OPERATION("getRecordRateList"));
    return m_camera.model().rates;
}

QSize SimControl::getResolution() const {
    m_camera.askConnected(OPERATION("getResolution"));
    return m_camera.get(&CameraState::resolution);
}

QList<QSize> SimControl::getResolutionList() const {
    m_camera.askConnected(OPERATION("getResolutionList"));
    return m_camera.model().resolutions;
}

int SimControl::getShutterSpeed() const {
    m_camera.askConnected(OPERATION("getShutterSpeed"));
    return ShutterText::valueIn(ShutterText(m_context.prefs).list(), m_camera.get(&CameraState::shutter));
}

QList<int> SimControl::getShutterSpeedList(int list) const {
    m_camera.askConnected(OPERATION("getShutterSpeedList"));
    QList<int> speeds;
    for (const int fraction : m_camera.model().shutters) {
        speeds.append(ShutterText::valueIn(list, fraction));
    }
    return speeds;
}

QStringList SimControl::getShutterSpeedEntries() const {
    m_camera.askConnected(OPERATION("getShutterSpeedEntries"));
    const ShutterText text(m_context.prefs);
    QStringList entries;
    for (const int fraction : m_camera.model().shutters) {
        entries.append(text.entry(fraction));
    }
    return entries;
}

int SimControl::getTriggerMode() const {
    m_camera.askConnected(OPERATION("getTriggerMode"));
    return m_camera.get(&CameraState::triggerMode);
}

QList<int> SimControl::getTriggerModeList() const {
    m_camera.askConnected(OPERATION("getTriggerModeList"));
    return m_camera.model().triggerModes;
}

zeb::ManualTriggerParameters SimControl::getManualTriggerParameters() const {
    m_camera.askConnected(OPERATION("getManualTriggerParameters"));
    zeb::ManualTriggerParameters parameters;
    parameters.triggerFrame = m_camera.get(&CameraState::triggerFrame);
    return parameters;
}

bool SimControl::getReduceMode(int /*head*/) const {
    m_camera.askConnected(OPERATION("getReduceMode"));
    return m_camera.get(&CameraState::reduce);
}

bool SimControl::isLowLightMode() const {
    m_camera.askConnected(OPERATION("isLowLightMode"));
    return m_camera.get(&CameraState::lowLight);
}

int SimControl::getLowLightType() const {
    m_camera.askConnected(OPERATION("getLowLightType"));
    return m_camera.get(&CameraState::lowLightType);
}

PARTITIONNUMBER SimControl::getPartitionCount(int /*mode*/, int /*head*/) const {
    m_camera.askConnected(OPERATION("getPartitionCount"));
    return m_camera.get(&CameraState::partitions);
}

PARTITIONNUMBER SimControl::getCurrentPartition(int /*mode*/) const {
    m_camera.askConnected(OPERATION("getCurrentPartition"));
    return m_camera.get(&CameraState::partition);
}

void SimControl::applyPartition(int mode) {
    m_context.calls.note("DOC_Control::applyPartition", {m_camera.key(), mode});
    m_camera.askConnected(OPERATION("applyPartition"));
}

zeb::VariableChannelInfo SimControl::getVariableChannelInfo(int channel) const {
    m_camera.askConnected(OPERATION("getVariableChannelInfo"));
    const QString text = m_camera.get(&CameraState::variableChannels).value(channel - 1);
    return {text, !text.isEmpty()};
}

unsigned int SimControl::getRecordedRateOfPartition(PARTITIONNUMBER partition) const {
    m_camera.askConnected(OPERATION("getRecordedRateOfPartition"));
    const auto recording = m_camera.recordingOf(partition);
    return recording ? recording->rate : 0;
}

unsigned int SimControl::getRecordedRate() const {
    m_camera.askConnected(OPERATION("getRecordedRate"));
    const auto recording = m_camera.recording();
    return recording ? recording->rate : 0;
}

bool SimControl::isTriggerOffsetEnabled() const {
    m_camera.askConnected(OPERATION("isTriggerOffsetEnabled"));
    return m_camera.get(&CameraState::triggerOffsetEnabled);
}

int SimControl::getTriggerOffset() const {
    m_camera.askConnected(OPERATION("getTriggerOffset"));
    return m_camera.get(&CameraState::triggerOffset);
}

int SimControl::getTriggerOffsetBase() const {
    m_camera.askConnected(OPERATION("getTriggerOffsetBase"));
    const auto recording = m_camera.recording();
    return recording ? recording->trigger : 0;
}

void SimControl::setTriggerOffsetEnabled(bool enabled) {
    m_context.calls.note("DOC_Control::setTriggerOffsetEnabled", {m_camera.key(), enabled});
    m_camera.askConnected(OPERATION("setTriggerOffsetEnabled"));
    m_camera.set(&CameraState::triggerOffsetEnabled, enabled);
}

void SimControl::setTriggerOffset(int frame) {
    m_context.calls.note("DOC_Control::setTriggerOffset", {m_camera.key(), frame});
    m_camera.askConnected(OPERATION("setTriggerOffset"));
    m_camera.set(&CameraState::triggerOffset, frame);
}

void SimControl::setSelectRange(int start, int end) {
    m_context.calls.note("DOC_Control::setSelectRange", {m_camera.key(), start, end});
    m_camera.askConnected(OPERATION("setSelectRange"));
    m_camera.set(&CameraState::selectedRange, {start, end});
}

bool SimControl::hasRecordedData() const {
    m_camera.askConnected(OPERATION("hasRecordedData"));
    return m_camera.get(&CameraState::recorded) && !m_camera.isUnderWay() && !m_context.recorder.isRunning();
}

void SimControl::eraseRecordedData(int mode) {
    m_context.calls.note("DOC_Control::eraseRecordedData", {m_camera.key(), mode});
    if (m_context.recorder.isRunning()) {
        throw CameraError(m_camera.name(), QStringLiteral("nothing can be erased while a recording is under way"));
    }
    const auto recording = m_camera.recording();
    m_camera.eraseRecordedData();
    if (recording && !m_camera.recording()) {
        const QString label = m_context.cameras.labelOf(m_camera);
        const QString frames = QString::number(recording->frameCount());
        const QString whole = m_context.translator.translate(TextKey("%1: %2 frames were erased."));
        const QString part = m_context.translator.translate(TextKey("%1: %2 frames in partition %3 were erased."));
        m_context.notices.add(Message::Info, m_camera.get(&CameraState::partitions) > 1
                                                 ? part.arg(label, frames, QString::number(recording->partition))
                                                 : whole.arg(label, frames));
    }
}
