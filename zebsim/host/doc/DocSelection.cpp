#include "DocSelection.h"

#include "Camera.h"
#include "CameraBank.h"

bool DocSelection::isSelected(DOCKEY key) const {
    const Camera* camera = m_cameras.findAmongAll(key);
    return camera != nullptr && camera->get(&CameraState::selected);
}

DOCKEY& DocSelection::kept() const {
    return m_cameras.listsFiles() ? m_currentFile : m_current;
}

DOCKEY DocSelection::current() const {
    if (!isSelected(kept())) {
        kept() = m_cameras.keysOf(&CameraState::selected).value(0, zeb::NoDocKey);
    }
    return kept();
}

void DocSelection::setCurrent(DOCKEY key) {
    if (isSelected(key)) {
        kept() = key;
    }
}

void DocSelection::select(Camera& camera) {
    const DOCKEY before = current();
    camera.set(&CameraState::selected, true);
    kept() = before == zeb::NoDocKey ? camera.key() : before;
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
