// What cameras are told to do.

#include "Camera.h"
#include "CameraError.h"
#include "PlainState.h"
#include "SyncSource.h"
#include "TextKey.h"

#include <algorithm>
#include <cmath>

template <typename T>
void Camera::onAllHeads(T CameraState::*member, T value) {
    for (const auto& head : m_device.heads()) {
        head->set(member, value);
    }
}

void Camera::require(int function, const char* mode) const {
    if (!model().functions.contains(function)) {
        refuse(QStringLiteral("the camera has no %1").arg(QLatin1String(mode)));
    }
}

void Camera::connect() {
    if (!command(OPERATION("connectDocs"))) {
        return;
    }
    onAllHeads(&CameraState::connected, true);
}

void Camera::disconnect() {
    m_device.restart().setMarked(false);
    disconnectForPreset();
}

void Camera::disconnectForPreset() {
    if (!command(OPERATION("disconnectDocs"))) {
        return;
    }
    disconnectHeads();
    if (m_device.restart().isRequested()) {
        beginRestart();
    }
}

void Camera::disconnectHeads() {
    for (const auto& head : m_device.heads()) {
        head->set(&CameraState::connected, false);
        head->enterRecordState(zeb::RecordLive);
    }
}

void Camera::setRecordRate(unsigned int rate) {
    if (!commandConnected(OPERATION("setRecordRate"))) {
        return;
    }
    try {
        onAllHeads(&CameraState::rate, model().acceptedRate(rate));
    } catch (const std::invalid_argument& refusal) {
        refuse(QString::fromUtf8(refusal.what()));
    }
    for (const auto& head : m_device.heads()) {
        head->fitShutter();
    }
}

/// No exposure lasts longer than a frame; low light mode is there to lift that.
void Camera::fitShutter() {
    if (!get(&CameraState::lowLight)) {
        set(&CameraState::shutter, model().fittingShutter(get(&CameraState::shutter), get(&CameraState::rate)));
    }
}

void Camera::setShutterSpeed(int speed) {
    if (!commandConnected(OPERATION("setShutterSpeed"))) {
        return;
    }
    if (!model().shutters.contains(speed)) {
        refuse(QStringLiteral("a shutter speed of 1/%1 s is not supported").arg(speed));
    }
    for (const auto& head : m_device.heads()) {
        if (head.get() == this || model().sharesShutter) {
            head->set(&CameraState::shutter, speed);
            head->fitShutter();
        }
    }
}

void Camera::setResolution(const QSize& resolution) {
    if (!commandConnected(OPERATION("setResolution"))) {
        return;
    }
    if (!model().resolutions.contains(resolution)) {
        refuse(QStringLiteral("%1 x %2 is not supported").arg(resolution.width()).arg(resolution.height()));
    }
    for (const auto& head : m_device.heads()) {
        if (head.get() == this || model().sharesResolution) {
            head->set(&CameraState::resolution, resolution);
        }
    }
}

void Camera::setTriggerMode(int mode, const zeb::TriggerSettings& settings, std::optional<int> triggerFrame) {
    if (!commandConnected(OPERATION("setTriggerMode"))) {
        return;
    }
    if (!model().triggerModes.contains(mode)) {
        refuse(QStringLiteral("the trigger mode is not supported"));
    }
    onAllHeads(&CameraState::triggerMode, mode);
    onAllHeads(&CameraState::randomFrames, settings.randomFrames);
    onAllHeads(&CameraState::randomTimes, settings.randomTimes);
    const double asked = settings.manualBeforePercent;
    const double before = std::isfinite(asked) ? std::clamp(asked, 0.0, 100.0) : 0.0;
    for (const auto& head : m_device.heads()) {
        if (!triggerFrame) {
            const unsigned int capacity = model().frameCapacity(head->state());
            head->set(&CameraState::triggerFrame, int(std::lround(capacity * (100.0 - before) / 100.0)));
        } else if (head.get() == this || model().isShared(QStringLiteral("triggerFrame"))) {
            head->set(&CameraState::triggerFrame, *triggerFrame);
        }
    }
}

void Camera::setRandomTriggerPhase(bool counted) {
    if (!commandConnected(OPERATION("setRandomTriggerPhase"))) {
        return;
    }
    onAllHeads(&CameraState::randomCounted, counted);
}

void Camera::setReduceMode(bool on) {
    if (!commandConnected(OPERATION("setReduceMode"))) {
        return;
    }
    require(zeb::FunctionReduceMode, "live speed to choose");
    set(&CameraState::reduce, on);
}

void Camera::synchronise(const SyncSource& source) {
    if (!commandConnected(OPERATION("synchronise"))) {
        return;
    }
    const std::lock_guard lock(m_device.mutex());
    m_state.syncSource = QString::fromLatin1(source.name);
    m_state.syncFrequency = source.frequency;
    m_state.syncMaster = source.master;
}

void Camera::switchLowLight(CameraOperation operation, bool on) {
    if (!commandConnected(operation)) {
        return;
    }
    require(zeb::FunctionLowLight, "low light mode");
    const int before = get(&CameraState::shutter);
    set(&CameraState::lowLight, on);
    if (on && before == m_shortened.second) {
        set(&CameraState::shutter, m_shortened.first);
    }
    fitShutter();
    m_shortened = {before, get(&CameraState::shutter)};
}

void Camera::setLowLightType(int type) {
    if (!commandConnected(OPERATION("setLowLightType"))) {
        return;
    }
    require(zeb::FunctionLowLight, "low light mode");
    set(&CameraState::lowLightType, type);
}

void Camera::setResolutionLock(bool lock) {
    if (commandConnected(OPERATION("setResolutionLock"))) {
        set(&CameraState::resolutionLock, lock);
    }
}

void Camera::setShutterSpeedLock(bool lock) {
    if (commandConnected(OPERATION("setShutterSpeedLock"))) {
        set(&CameraState::shutterSpeedLock, lock);
    }
}

void Camera::setPortSignal(int index, int signal) {
    if (!commandConnected(OPERATION("setPortSignal"))) {
        return;
    }
    QMap<int, int> ports = get(&CameraState::ports);
    if (index < 1 || index > ports.size()) {
        refuse(QStringLiteral("there is no port at place %1").arg(index));
    }
    ports[ports.keys().at(index - 1)] = signal;
    set(&CameraState::ports, ports);
}

void Camera::setName(const QString& name) {
    if (!commandConnected(OPERATION("setCameraName"))) {
        return;
    }
    set(&CameraState::name, name);
}

void Camera::setComment(const QString& comment) {
    if (!commandConnected(OPERATION("setComment"))) {
        return;
    }
    set(&CameraState::comment, comment);
}

void Camera::loadSettings(const QVariantMap& settings) {
    if (!commandConnected(OPERATION("loadSettings"))) {
        return;
    }
    QString reason;
    try {
        const std::lock_guard lock(m_device.mutex());
        m_state.apply(settings);
    } catch (const StateError& error) {
        reason = error.member % QStringLiteral(": ") % error.reason;
    }
    if (!reason.isEmpty()) {
        refuse(reason);
    }
}

CameraState Camera::readSettings(CameraOperation operation) {
    if (!commandConnected(operation)) {
        refuse(TextKey("the camera is gone"));
    }
    return state();
}

void Camera::eraseRecordedData() {
    if (!commandConnected(OPERATION("eraseRecordedData"))) {
        return;
    }
    if (isUnderWay()) {
        refuse(QStringLiteral("nothing can be erased while the camera is ready or records"));
    }
    set(&CameraState::recorded, false);
}

void Camera::setPartition(PARTITIONNUMBER partition) {
    if (!commandConnected(OPERATION("setPartition"))) {
        return;
    }
    if (partition < 1 || partition > get(&CameraState::partitions)) {
        throw CameraError(name(), QStringLiteral("there is no partition %1").arg(partition));
    }
    if (isUnderWay()) {
        refuse(QStringLiteral("the partition can't be changed while the camera is ready or records"));
    }
    const std::lock_guard lock(m_device.mutex());
    changePartition(partition);
}

void Camera::setVariable(unsigned int channel) {
    if (!commandConnected(OPERATION("setVariable"))) {
        return;
    }
    if (get(&CameraState::variableChannels).value(int(channel) - 1).isEmpty()) {
        throw CameraError(name(), QStringLiteral("there is no variable channel %1").arg(channel));
    }
    set(&CameraState::variable, channel);
}

void Camera::arm() {
    if (commandConnected(OPERATION("arm"))) {
        enterRecordState(model().ctsReady > 0 ? zeb::RecordCtsReady : zeb::RecordReady);
    }
}

void Camera::trigger() {
    if (commandConnected(OPERATION("trigger"))) {
        keep(get(&CameraState::partition), std::nullopt);
        enterRecordState(zeb::RecordRecording);
    }
}

/// Its recording is over when whoever runs it says so.
void Camera::stop() {
    commandConnected(OPERATION("stop"));
}

void Camera::cancel() {
    if (commandConnected(OPERATION("cancel"))) {
        enterRecordState(zeb::RecordLive);
    }
}

void Camera::disarm() {
    if (commandConnected(OPERATION("disarm"))) {
        enterRecordState(zeb::RecordLive);
    }
}
