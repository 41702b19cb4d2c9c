#pragma once

#include <QString>

#include <functional>

class Camera;
class CameraBank;
class SimSignalDevices;

/// What cameras see of the signal that they were synchronised with. GUI thread.
class SyncSignal {
public:
    SyncSignal(const CameraBank& cameras, const SimSignalDevices& hubs) : m_cameras(cameras), m_hubs(hubs) {}

    /// What tells the frequency of the external signal as it is now, in hertz: 0 for none, below 0 when it does not
    /// know. Without one, and then, the signal is what it was when the cameras were synchronised with it.
    void setGenerator(std::function<int()> frequency) { m_generator = std::move(frequency); }

    /// "Sync In", "Over Sync" for a signal that is faster than the camera records, "No Sync" without one.
    QString statusOf(const Camera& camera) const;

private:
    int frequencyOf(const QString& source, const Camera& camera) const;
    int externalFrequency(const Camera& camera) const;
    int rateOf(unsigned int master) const;

    const CameraBank& m_cameras;
    const SimSignalDevices& m_hubs;
    std::function<int()> m_generator = [] { return -1; };
};
