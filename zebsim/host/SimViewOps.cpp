#include "SimViewOps.h"

#include "Camera.h"
#include "CameraBank.h"
#include "StatusFlags.h"

namespace {

CameraState stateOf(const CameraBank& cameras, DOCKEY key) {
    const Camera* camera = cameras.find(key);
    return camera ? camera->state() : CameraState();
}

}  // namespace

double SimViewOps::getRotation(DOCKEY key) const {
    return stateOf(m_cameras, key).rotation;
}

bool SimViewOps::isHorizontalFlip(DOCKEY key) const {
    return stateOf(m_cameras, key).flipHorizontal;
}

bool SimViewOps::isVerticalFlip(DOCKEY key) const {
    return stateOf(m_cameras, key).flipVertical;
}

double SimViewOps::getZoom(DOCKEY key) const {
    return stateOf(m_cameras, key).zoom;
}

bool SimViewOps::isCycleView() const {
    return m_flags.isOn(StatusFlags::IsCycleView);
}
