#include "host/SimMdi.h"

#include "camera/Camera.h"
#include "host/CameraBank.h"
#include "host/SimAppStatus.h"
#include "host/StatusFlags.h"

#include <algorithm>

int SimMdi::countMdiWindow(bool /*visible*/, int /*kind*/) const {
    if (m_flags.isOn(QStringLiteral("IsNoneWindow")) || m_appStatus.mode() == zeb::FileMode) {
        return 0;
    }
    const auto cameras = m_cameras.all();
    return int(std::count_if(cameras.begin(), cameras.end(),
                             [](const Camera* camera) { return camera->get(&CameraState::connected); }));
}
