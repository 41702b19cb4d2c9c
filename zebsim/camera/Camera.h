#pragma once

#include "camera/CameraModel.h"
#include "camera/CameraState.h"
#include "camera/Recording.h"

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
    /// Nothing when nothing is recorded.
    std::optional<Recording> recording() const;
    /// Changes the state behind the camera's back: no latency, no limits, no other heads. Throws `CameraStateError`.
    void change(const QVariantMap& members);

    /// Every question of a document to its camera begins with one of these; they take the time that a planted fault
    /// says. They throw `QueryError`, the second also when the camera is not connected.
    void query(const char* operation) const;
    void queryConnected(const char* operation) const;

    /// Commands. Each takes the camera's latency, or throws `CameraError`.
    ///
    /// Connects the device with all its heads, and disconnects it.
    void connect();
    void disconnect();
    /// The rate that the model makes of `rate`, on all heads of the device.
    void setRecordRate(unsigned int rate);
    void eraseRecordedData();
    /// Throws also for a partition or channel that the camera does not have.
    void setPartition(PARTITIONNUMBER partition);
    void setVariable(unsigned int channel);
    /// A camera that waits for a trigger goes back to live.
    void disarm();

private:
    void command(const char* operation);
    void commandConnected(const char* operation);
    /// Why the operation fails; empty when it does not.
    QString meetFault(const char* operation) const;
    template <typename T>
    void onAllHeads(T CameraState::*member, T value);

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
