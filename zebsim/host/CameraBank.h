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

    /// Finds the devices whose address begins with `network`, three octets; empty: all. It takes the time that the
    /// slowest of them takes to answer.
    void search(const QString& network);
    /// Asks the devices that are known once more.
    void searchListed();
    /// Forgets all cameras, after they were disconnected; a search finds them again.
    void forgetAll();

    /// Null when there is no such camera, when it is gone or not found yet.
    Camera* find(DOCKEY key) const;
    /// Whether the rig has such a camera, gone or not found yet.
    bool has(DOCKEY key) const { return key >= 1 && key <= m_cameras.size(); }
    /// In the order of their keys, without those that are gone or not found yet.
    std::vector<Camera*> all() const;

private:
    Clock& m_clock;
    FaultPlan& m_faults;
    ShownErrors& m_shownErrors;
    void waitFor(const std::vector<const CameraDevice*>& devices);

    std::vector<std::unique_ptr<CameraDevice>> m_devices;
    std::vector<Camera*> m_cameras;
};
