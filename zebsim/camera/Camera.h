#pragma once

#include "camera/CameraModel.h"
#include "camera/CameraState.h"

#include <memory>
#include <mutex>
#include <utility>

class CameraDevice;

/// A camera, or one head of a device with several: the one truth of its settings. Any thread.
class Camera {
public:
    Camera(DOCKEY key, CameraDevice& device, CameraState state);
    Camera(const Camera&) = delete;
    Camera& operator=(const Camera&) = delete;

    DOCKEY key() const { return m_key; }
    CameraDevice& device() const { return m_device; }
    const CameraModel& model() const;
    QString name() const { return get(&CameraState::name); }
    /// The camera has vanished: it does nothing more, and the host has no document for it.
    bool isGone() const;

    /// One member of the state, as `get(&CameraState::rate)`.
    template <typename T>
    T get(T CameraState::*member) const;
    template <typename T>
    void set(T CameraState::*member, T value);
    CameraState state() const;
    /// Changes the state behind the camera's back: no latency, no limits, no other heads. Throws `CameraStateError`.
    void change(const QVariantMap& members);

    /// Every call of a document to its camera begins with one of these; they take the time that a planted fault says.
    /// `query` throws `QueryError`, `command` also takes the camera's latency and throws `CameraError`.
    void query(const char* operation) const;
    void command(const char* operation);
    /// As `query`, which also throws when the camera is not connected.
    void queryConnected(const char* operation) const;

    /// Connects the device with all its heads, and disconnects it.
    void connect();
    void disconnect();
    /// The rate that the model makes of `rate`, on all heads of the device.
    void setRecordRate(unsigned int rate);

private:
    void meetFault(const char* operation) const;

    const DOCKEY m_key;
    CameraDevice& m_device;
    CameraState m_state;
};

#include "camera/CameraDevice.h"

template <typename T>
T Camera::get(T CameraState::*member) const {
    const std::lock_guard lock(m_device.mutex());
    return m_state.*member;
}

template <typename T>
void Camera::set(T CameraState::*member, T value) {
    const std::lock_guard lock(m_device.mutex());
    m_state.*member = std::move(value);
}
