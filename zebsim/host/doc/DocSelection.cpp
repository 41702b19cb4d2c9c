#include "DocSelection.h"

#include "Camera.h"
#include "CameraBank.h"

bool DocSelection::isSelected(DOCKEY key) const {
    const Camera* camera = m_cameras.find(key);
    return camera && camera->get(&CameraState::selected);
}

DOCKEY DocSelection::current() const {
    if (!isSelected(m_current)) {
        m_current = m_cameras.keysOf(&CameraState::selected).value(0, zeb::NoDocKey);
    }
    return m_current;
}

void DocSelection::setCurrent(DOCKEY key) {
    if (isSelected(key)) {
        m_current = key;
    }
}

void DocSelection::select(Camera& camera) {
    const DOCKEY before = current();
    camera.set(&CameraState::selected, true);
    m_current = before == zeb::NoDocKey ? camera.key() : before;
}

void DocSelection::deselect(Camera& camera) {
    camera.set(&CameraState::selected, false);
}

void DocSelection::selectOnly(const DocKeyList& keys) {
    for (Camera* camera : m_cameras.all()) {
        camera->set(&CameraState::selected, keys.contains(camera->key()));
    }
}

void DocSelection::selectAll() {
    for (Camera* camera : m_cameras.all()) {
        camera->set(&CameraState::selected, true);
    }
}
