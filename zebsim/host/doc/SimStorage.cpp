#include "SimStorage.h"

#include "Camera.h"

QStringList SimStorage::getPluginNames() const {
    m_camera.askConnected(OPERATION("getPluginNames"));
    return m_camera.get(&CameraState::plugins);
}

bool SimStorage::isPluginEffective(const QString& name, int /*head*/) const {
    m_camera.askConnected(OPERATION("isPluginEffective"));
    return m_camera.get(&CameraState::effectivePlugins).contains(name);
}

bool SimStorage::isLutCurve() const {
    m_camera.ask(OPERATION("isLutCurve"));
    return m_camera.get(&CameraState::lutCurve);
}
