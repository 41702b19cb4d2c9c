#include "CameraEdit.h"
#include "ParameterEditing.h"
#include "TriggerEditing.h"

template <>
ParameterEditing JS_Mediator_WrenTableDialog::topic() {
    return {host(), m_state.allowed};
}

template <>
TriggerEditing JS_Mediator_WrenTableDialog::topic() {
    return TriggerEditing(host());
}

void JS_Mediator_WrenTableDialog::setParamLock(const QVariantList& keys, bool lock) {
    edit(__func__, keys, "lock", lock, &ParameterEditing::setParamLock, cameraaction::Lock);
}

void JS_Mediator_WrenTableDialog::setFrameRate(const QVariantList& keys, const QString& val) {
    edit(__func__, keys, "val", val, &ParameterEditing::setFrameRate, cameraaction::FrameRate);
}

void JS_Mediator_WrenTableDialog::setShutterSpeed(const QVariantList& keys, const QString& val) {
    edit(__func__, keys, "val", val, &ParameterEditing::setShutterSpeed, cameraaction::Shutter);
}

void JS_Mediator_WrenTableDialog::setResolution(const QVariantList& keys, const QString& val) {
    edit(__func__, keys, "val", val, &ParameterEditing::setResolution, cameraaction::ImageSize);
}

void JS_Mediator_WrenTableDialog::setTriggerMode(const QVariantList& keys, const QString& val) {
    edit(__func__, keys, "val", val, &TriggerEditing::setTriggerMode, cameraaction::Trigger);
}

void JS_Mediator_WrenTableDialog::setReduceMode(const QVariantList& keys, bool on) {
    edit(__func__, keys, "on", on, &ParameterEditing::setReduceMode, cameraaction::LiveSpeed);
}

void JS_Mediator_WrenTableDialog::setLowLight(const QVariantList& keys, bool on) {
    edit(__func__, keys, "on", on, &ParameterEditing::setLowLight, cameraaction::LowLight);
}

void JS_Mediator_WrenTableDialog::setLowLightType(const QVariantList& keys, bool check) {
    edit(__func__, keys, "check", check, &ParameterEditing::setLowLightType, cameraaction::LowLightType);
}
