#pragma once

#include "ZebTypes.h"

#include <memory>
#include <vector>

class Camera;
class CameraDevice;
class Clock;
class FaultPlan;
class ShownErrors;
struct Rig;

/// The cameras of the host, each with its key. Keys count from 1 in the order of the rig. GUI thread.
class CameraBank {
public:
    CameraBank(Clock& clock, FaultPlan& faults, ShownErrors& shownErrors);
    ~CameraBank();

    /// Puts the cameras of `rig` in the place of all others.
    void replace(const Rig& rig);

    /// Null when there is no such camera, or it is gone.
    Camera* find(DOCKEY key) const;
    /// Whether there is such a camera, gone or not.
    bool has(DOCKEY key) const { return key >= 1 && key <= m_cameras.size(); }
    /// In the order of their keys, without those that are gone.
    std::vector<Camera*> all() const;

private:
    Clock& m_clock;
    FaultPlan& m_faults;
    ShownErrors& m_shownErrors;
    std::vector<std::unique_ptr<CameraDevice>> m_devices;
    std::vector<Camera*> m_cameras;
};
