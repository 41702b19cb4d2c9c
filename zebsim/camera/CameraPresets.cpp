// Settings that a device keeps itself.

#include "Camera.h"
#include "CameraError.h"
#include "Clock.h"
#include "TextKey.h"

zeb::CameraPresetInfo Camera::presetInfo() const {
    return {get(&CameraState::preset), model().presets};
}

void Camera::requirePreset(int number) const {
    if (number < 1 || number > model().presets) {
        refuse(TextKey("there is no such preset"));
    }
    for (const auto& head : m_device.heads()) {
        if (head->isUnderWay()) {
            refuse(TextKey("no preset can be used while the camera is ready or records"));
        }
    }
}

void Camera::loadPreset(int number) {
    try {
        if (!commandConnected(OPERATION("loadCameraPreset"))) {
            return;
        }
        requirePreset(number);
    } catch (...) {
        m_device.restart().setMarked(false);
        throw;
    }
    {
        const std::lock_guard lock(m_device.mutex());
        for (const auto& head : m_device.heads()) {
            CameraState& state = head->m_state;
            const QVariant stored = state.presets.value(QString::number(number));
            state.apply(stored.isNull() ? model().initial.toPlain(CameraState::recordSettings()) : stored.toMap());
            state.preset = number;
            head->m_shortened = {};
        }
    }
    if (model().presetReboots) {
        m_device.restart().request();
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
        state.presets.insert(QString::number(number), state.toPlain(CameraState::recordSettings()));
        state.preset = number;
    }
}

void Camera::markRebooting() {
    ask(OPERATION("markRebooting"));
    m_device.restart().setMarked(true);
}

void Camera::reboot() {
    m_device.restart().setMarked(true);
    disconnectHeads();
    beginRestart();
}

void Camera::beginRestart() {
    bool comesBack = true;
    try {
        ask(OPERATION("reboot"));
    } catch (const CameraError&) {
        comesBack = false;
    }
    m_device.restart().begin(m_device.clock().now() + model().bootTime, comesBack);
}
