// Settings that a device keeps itself.

#include "Camera.h"
#include "PlainState.h"

namespace {

const QStringList& presetMembers() {
    static const QStringList members = QStringLiteral(
                                           "resolution rate shutter triggerMode triggerFrame randomFrames randomTimes "
                                           "randomCounted reduce lowLightType ports dualSlope autoExposure irig "
                                           "irigStampAtEnd irigSync resolutionLock shutterSpeedLock variable")
                                           .split(QLatin1Char(' '));
    return members;
}

QVariantMap kept(const CameraState& state) {
    const QVariantMap all = state.toPlain();
    QVariantMap members;
    for (const QString& name : presetMembers()) {
        members.insert(name, all.value(name));
    }
    return members;
}

}  // namespace

zeb::CameraPresetInfo Camera::presetInfo() const {
    return {get(&CameraState::preset), model().presets};
}

void Camera::requirePreset(int number) const {
    if (number < 1 || number > model().presets) {
        refuse(QStringLiteral("there is no preset %1").arg(number));
    }
    if (isUnderWay()) {
        refuse(QStringLiteral("no preset can be used while the camera is ready or records"));
    }
}

void Camera::loadPreset(int number) {
    if (!commandConnected(OPERATION("loadCameraPreset"))) {
        return;
    }
    requirePreset(number);
    const std::lock_guard lock(m_device.mutex());
    for (const auto& head : m_device.heads()) {
        CameraState& state = head->m_state;
        const QVariant stored = state.presets.value(QString::number(number));
        state.apply(stored.isNull() ? kept(model().initial) : stored.toMap());
        state.preset = number;
    }
}

void Camera::savePreset(int number) {
    if (!commandConnected(OPERATION("saveCameraPreset"))) {
        return;
    }
    requirePreset(number);
    const std::lock_guard lock(m_device.mutex());
    for (const auto& head : m_device.heads()) {
        CameraState& state = head->m_state;
        state.presets.insert(QString::number(number), kept(state));
        state.preset = number;
    }
}

void Camera::markRebooting() {
    ask(OPERATION("markRebooting"));
}

void Camera::setPluginEffective(const QString& name, bool effective) {
    const std::lock_guard lock(m_device.mutex());
    QStringList& names = m_state.effectivePlugins;
    names.removeAll(name);
    if (effective) {
        names.append(name);
    }
}
