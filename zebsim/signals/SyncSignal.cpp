#include "signals/SyncSignal.h"

#include "camera/Camera.h"
#include "camera/SyncSource.h"
#include "host/CameraBank.h"
#include "signals/SimSignalDevices.h"

QString SyncSignal::statusOf(const Camera& camera) const {
    const CameraState state = camera.state();
    if (state.syncSource.isEmpty()) {
        return state.syncStatus;
    }
    const int frequency = frequencyFor(state);
    if (frequency < 1) {
        return QStringLiteral("No Sync");
    }
    return static_cast<unsigned int>(frequency) > state.rate ? QStringLiteral("Over Sync") : QStringLiteral("Sync In");
}

int SyncSignal::frequencyFor(const CameraState& state) const {
    if (state.syncSource == QLatin1String(SyncSource::Chain)) {
        return rateOf(state.syncMaster);
    }
    return state.syncSource == QLatin1String(SyncSource::Hub) ? m_hubs.signal() : state.syncFrequency;
}

/// A master that nobody reaches gives no signal.
int SyncSignal::rateOf(unsigned int master) const {
    const Camera* camera = m_cameras.find(master);
    return camera && camera->get(&CameraState::connected) ? int(camera->get(&CameraState::rate)) : 0;
}
