#include "host/CameraBank.h"

#include "camera/Camera.h"
#include "camera/Rig.h"

CameraBank::CameraBank(Clock& clock, FaultPlan& faults, ShownErrors& shownErrors)
    : m_clock(clock), m_faults(faults), m_shownErrors(shownErrors) {}

CameraBank::~CameraBank() = default;

void CameraBank::replace(const Rig& rig) {
    m_cameras.clear();
    m_devices.clear();
    for (const RigDevice& device : rig.devices) {
        const DOCKEY firstKey = static_cast<DOCKEY>(m_cameras.size() + 1);
        m_devices.push_back(std::make_unique<CameraDevice>(device, firstKey, m_clock, m_faults, m_shownErrors));
        for (const auto& head : m_devices.back()->heads()) {
            m_cameras.push_back(head.get());
        }
    }
}

Camera* CameraBank::find(DOCKEY key) const {
    if (!has(key)) {
        return nullptr;
    }
    Camera* camera = m_cameras[key - 1];
    return camera->isGone() ? nullptr : camera;
}

std::vector<Camera*> CameraBank::all() const {
    std::vector<Camera*> cameras;
    for (Camera* camera : m_cameras) {
        if (!camera->isGone()) {
            cameras.push_back(camera);
        }
    }
    return cameras;
}
