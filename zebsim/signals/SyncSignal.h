#pragma once

#include <QString>

class Camera;
class CameraBank;
class SimSignalDevices;

/// What cameras see of the signal that they were synchronised with. GUI thread.
class SyncSignal {
public:
    SyncSignal(const CameraBank& cameras, const SimSignalDevices& hubs) : m_cameras(cameras), m_hubs(hubs) {}

    /// "Sync In", "Over Sync" for a signal that is faster than the camera records, "No Sync" without one.
    QString statusOf(const Camera& camera) const;

private:
    int frequencyOf(const QString& source, const Camera& camera) const;
    int rateOf(unsigned int master) const;

    const CameraBank& m_cameras;
    const SimSignalDevices& m_hubs;
};
