#include "CameraScripting.h"

#include "Camera.h"
#include "PlainState.h"
#include "RigFile.h"
#include "ScenarioError.h"
#include "SimHost.h"

#include <QDir>
#include <QFileInfo>

CameraScripting::CameraScripting(SimHost& host, const QString& folder) : m_host(host), m_folder(folder) {}

void CameraScripting::rig(const QJSValue& pathOrCount) {
    if (pathOrCount.isNumber()) {
        m_host.setRig(standardRig(pathOrCount.toInt()));
        return;
    }
    const QString near = QDir(m_folder).filePath(pathOrCount.toString());
    m_host.setRig(readRig(QFileInfo(near).isFile() ? near : pathOrCount.toString()));
}

QVariantList CameraScripting::keys() const {
    QVariantList list;
    for (const Camera* camera : m_host.cameras().all()) {
        list << camera->key();
    }
    return list;
}

QVariant CameraScripting::camera(unsigned int key) const {
    const Camera* camera = m_host.cameras().find(key);
    return camera ? QVariant(camera->state().toPlain()) : QVariant();
}

void CameraScripting::reboot(unsigned int key) {
    there(key).reboot();
}

Camera& CameraScripting::there(unsigned int key) const {
    Camera* camera = m_host.cameras().find(key);
    if (camera == nullptr) {
        throw ScenarioError(QStringLiteral("there is no camera %1").arg(key));
    }
    return *camera;
}

void CameraScripting::setCamera(unsigned int key, const QVariantMap& members) {
    try {
        there(key).change(members);
    } catch (const StateError& e) {
        throw ScenarioError(QStringLiteral("camera %1, %2: %3").arg(key).arg(e.member, e.reason));
    }
}
