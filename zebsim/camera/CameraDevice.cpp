#include "CameraDevice.h"

#include "Camera.h"

CameraDevice::CameraDevice(const RigDevice& device, DOCKEY firstKey, Clock& clock, FaultPlan& faults)
    : m_address(device.address),
      m_model(device.model),
      m_latency(device.latency),
      m_found(device.found),
      m_clock(clock),
      m_faults(faults) {
    for (const CameraState& head : device.heads) {
        m_heads.push_back(std::make_unique<Camera>(firstKey++, *this, head));
    }
}

CameraDevice::~CameraDevice() = default;
