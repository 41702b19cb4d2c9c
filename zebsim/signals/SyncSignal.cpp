#include "SyncSignal.h"

#include "Camera.h"
#include "CameraBank.h"
#include "SimSignalDevices.h"
#include "SyncSource.h"

QString SyncSignal::statusOf(const Camera& camera) const {
    const QString source = camera.get(&CameraState::syncSource);
    if (source.isEmpty()) {
        return camera.get(&CameraState::syncStatus);
    }
    const int frequency = frequencyOf(source, camera);
    if (frequency < 1) {
        return QStringLiteral("No Sync");
    }
    const bool over = static_cast<unsigned int>(frequency) > camera.get(&CameraState::rate);
    return over ? QStringLiteral("Over Sync") : QStringLiteral("Sync In");
}

int SyncSignal::frequencyOf(const QString& source, const Camera& camera) const {
    if (source == QLatin1String(SyncSource::Chain)) {
        return rateOf(camera.get(&CameraState::syncMaster));
    }
    return source == QLatin1String(SyncSource::Hub) ? m_hubs.signal() : externalFrequency(camera);
}

int SyncSignal::externalFrequency(const Camera& camera) const {
    const int now = m_generator();
    return now < 0 ? camera.get(&CameraState::syncFrequency) : now;
}

/// A master that nobody reaches gives no signal.
int SyncSignal::rateOf(unsigned int master) const {
    const Camera* camera = m_cameras.find(master);
    return camera && camera->get(&CameraState::connected) ? int(camera->get(&CameraState::rate)) : 0;
}
