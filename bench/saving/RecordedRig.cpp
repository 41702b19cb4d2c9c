#include "RecordedRig.h"

Rig recordedRig(int cameras, const QSize& resolution, int frames, int grain) {
    constexpr int Memory = 1 << 16;
    auto model = std::make_shared<CameraModel>();
    model->memory = Memory;
    model->grain = grain;
    CameraState state;
    state.connected = true;
    state.recorded = true;
    state.recordedRate = 1000;
    state.recordedResolution = resolution;
    state.resolution = resolution;
    state.recordedRange = {0, frames - 1};
    Rig rig;
    for (int camera = 1; camera <= cameras; ++camera) {
        RigDevice device;
        device.address = QStringLiteral("10.0.0.%1").arg(camera);
        device.model = model;
        state.name = QStringLiteral("Camera %1").arg(camera);
        device.heads = {state};
        rig.devices.append(device);
    }
    return rig;
}
