#pragma once

#include "Restart.h"
#include "Rig.h"

#include <atomic>
#include <memory>
#include <mutex>
#include <vector>

class Camera;
class Clock;
class FaultPlan;

/// A device with its heads. One mutex guards the states of them all. Any thread.
class CameraDevice {
public:
    /// The heads get the keys from `firstKey` on.
    CameraDevice(const RigDevice& device, DOCKEY firstKey, Clock& clock, FaultPlan& faults);
    ~CameraDevice();

    const QString& address() const { return m_address; }
    const CameraModel& model() const { return *m_model; }
    std::shared_ptr<const CameraModel> sharedModel() const { return m_model; }
    int latency() const { return m_latency; }
    /// Whether the host has found the device.
    bool isFound() const { return m_found; }
    void setFound(bool found) { m_found = found; }
    /// The master head is the first.
    const std::vector<std::unique_ptr<Camera>>& heads() const { return m_heads; }
    std::mutex& mutex() const { return m_mutex; }
    Restart& restart() const { return m_restart; }

    Clock& clock() const { return m_clock; }
    FaultPlan& faults() const { return m_faults; }

private:
    const QString m_address;
    const std::shared_ptr<const CameraModel> m_model;
    const int m_latency;
    std::atomic<bool> m_found;
    Clock& m_clock;
    FaultPlan& m_faults;
    mutable std::mutex m_mutex;
    mutable Restart m_restart;
    std::vector<std::unique_ptr<Camera>> m_heads;
};
