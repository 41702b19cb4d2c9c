#include "camera/Camera.h"

#include "camera/CameraError.h"
#include "camera/FaultPlan.h"
#include "camera/ShownErrors.h"
#include "recording/Clock.h"

namespace {

const QString notConnected = QStringLiteral("the camera is not connected");

}

Camera::Camera(DOCKEY key, CameraDevice& device, CameraState state)
    : m_key(key), m_device(device), m_state(std::move(state)) {}

const CameraModel& Camera::model() const {
    return m_device.model();
}

bool Camera::isGone() const {
    return m_device.faults().isGone(m_key);
}

CameraState Camera::state() const {
    const std::lock_guard lock(m_device.mutex());
    return m_state;
}

std::optional<Recording> Camera::recording() const {
    return Recording::of(state(), model());
}

void Camera::change(const QVariantMap& members) {
    const std::lock_guard lock(m_device.mutex());
    m_state.apply(members);
}

QString Camera::meetFault(const char* operation) const {
    const Fault fault = m_device.faults().meet(m_key, operation);
    m_device.clock().wait(fault.delay);
    return isGone() ? QStringLiteral("the camera is gone") : fault.throws;
}

void Camera::query(const char* operation) const {
    const QString reason = meetFault(operation);
    if (!reason.isEmpty()) {
        throw QueryError(name(), reason, m_key, operation);
    }
    m_device.shownErrors().answered(m_key, operation);
}

void Camera::queryConnected(const char* operation) const {
    if (!get(&CameraState::connected)) {
        throw QueryError(name(), notConnected, m_key, operation);
    }
    query(operation);
}

void Camera::command(const char* operation) {
    const QString reason = meetFault(operation);
    if (!reason.isEmpty()) {
        throw CameraError(name(), reason);
    }
    m_device.clock().wait(m_device.latency());
}

void Camera::commandConnected(const char* operation) {
    if (!get(&CameraState::connected)) {
        throw CameraError(name(), notConnected);
    }
    command(operation);
}

void Camera::connect() {
    command("connectDocs");
    onAllHeads(&CameraState::connected, true);
}

void Camera::disconnect() {
    command("disconnectDocs");
    onAllHeads(&CameraState::connected, false);
}

void Camera::setRecordRate(unsigned int rate) {
    commandConnected("setRecordRate");
    try {
        onAllHeads(&CameraState::rate, model().acceptedRate(rate));
    } catch (const std::invalid_argument& refusal) {
        throw CameraError(name(), QString::fromUtf8(refusal.what()));
    }
}

void Camera::eraseRecordedData() {
    commandConnected("eraseRecordedData");
    set(&CameraState::recorded, false);
}

void Camera::setPartition(PARTITIONNUMBER partition) {
    commandConnected("setPartition");
    if (partition < 1 || partition > get(&CameraState::partitions)) {
        throw CameraError(name(), QStringLiteral("there is no partition %1").arg(partition));
    }
    set(&CameraState::partition, partition);
}

void Camera::setVariable(unsigned int channel) {
    commandConnected("setVariable");
    if (get(&CameraState::variableChannels).value(int(channel) - 1).isEmpty()) {
        throw CameraError(name(), QStringLiteral("there is no variable channel %1").arg(channel));
    }
    set(&CameraState::variable, channel);
}

void Camera::disarm() {
    commandConnected("disarm");
    set(&CameraState::recordState, 0);
    set(&CameraState::status, int(zeb::CameraLive));
}

template <typename T>
void Camera::onAllHeads(T CameraState::*member, T value) {
    for (const auto& head : m_device.heads()) {
        head->set(member, value);
    }
}
