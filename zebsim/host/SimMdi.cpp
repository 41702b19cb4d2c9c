#include "SimMdi.h"

#include "Camera.h"
#include "CameraBank.h"
#include "StatusFlags.h"

#include <algorithm>

int SimMdi::countMdiWindow(bool /*visible*/, int /*kind*/) const {
    if (m_flags.isOn(StatusFlags::IsNoneWindow)) {
        return 0;
    }
    const auto cameras = m_cameras.all();
    return int(std::count_if(cameras.begin(), cameras.end(),
                             [](const Camera* camera) { return camera->get(&CameraState::connected); }));
}
