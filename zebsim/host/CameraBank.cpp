#include "host/CameraBank.h"

#include "camera/Camera.h"
#include "camera/Rig.h"
#include "recording/Clock.h"

#include <algorithm>

namespace {

bool isListed(const Camera& camera) {
    return camera.device().isFound() && !camera.isGone();
}

}  // namespace

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

void CameraBank::search(const QString& network) {
    std::vector<const CameraDevice*> answering;
    for (const auto& device : m_devices) {
        if (network.isEmpty() || device->address().section(QLatin1Char('.'), 0, 2) == network) {
            device->setFound(true);
            answering.push_back(device.get());
        }
    }
    waitFor(answering);
}

void CameraBank::searchListed() {
    std::vector<const CameraDevice*> known;
    for (const auto& device : m_devices) {
        if (device->isFound()) {
            known.push_back(device.get());
        }
    }
    waitFor(known);
}

void CameraBank::waitFor(const std::vector<const CameraDevice*>& devices) {
    int longest = 0;
    for (const CameraDevice* device : devices) {
        longest = std::max(longest, device->latency());
    }
    m_clock.wait(longest);
}

void CameraBank::forgetAll() {
    for (const auto& device : m_devices) {
        device->setFound(false);
        for (const auto& head : device->heads()) {
            head->set(&CameraState::connected, false);
            head->set(&CameraState::selected, false);
            head->set(&CameraState::locked, false);
            head->set(&CameraState::recordCheck, false);
        }
    }
}

Camera* CameraBank::find(DOCKEY key) const {
    if (!has(key)) {
        return nullptr;
    }
    Camera* camera = m_cameras[key - 1];
    return isListed(*camera) ? camera : nullptr;
}

std::vector<Camera*> CameraBank::all() const {
    std::vector<Camera*> cameras;
    for (Camera* camera : m_cameras) {
        if (isListed(*camera)) {
            cameras.push_back(camera);
        }
    }
    return cameras;
}
