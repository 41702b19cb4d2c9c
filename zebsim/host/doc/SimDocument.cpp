#include "SimDocument.h"

#include "Camera.h"
#include "ShutterText.h"
#include "SimDocManager.h"
#include "TextKey.h"
#include "Translator.h"

SimDocument::SimDocument(Camera& camera, const DocContext& context)
    : m_key(camera.key()),
      m_camera(camera),
      m_context(context),
      m_activity(camera, context),
      m_lock(camera, context),
      m_frames(camera, context),
      m_image(camera, context),
      m_control(camera, context),
      m_head(camera),
      m_storage(camera) {}

bool SimDocument::isConnected() const {
    m_camera.ask(OPERATION("isConnected"));
    return m_camera.get(&CameraState::connected);
}

bool SimDocument::isSelected() const {
    m_camera.ask(OPERATION("isSelected"));
    return m_camera.get(&CameraState::selected);
}

bool SimDocument::isMobileSelected() const {
    m_camera.ask(OPERATION("isMobileSelected"));
    return m_camera.get(&CameraState::mobile);
}

bool SimDocument::isSdSelected() const {
    m_camera.ask(OPERATION("isSdSelected"));
    return m_camera.get(&CameraState::sd);
}

bool SimDocument::isQuikDriveSelected() const {
    m_camera.ask(OPERATION("isQuikDriveSelected"));
    return m_camera.get(&CameraState::quikDrive);
}

bool SimDocument::isCFastSelected() const {
    m_camera.ask(OPERATION("isCFastSelected"));
    return m_camera.get(&CameraState::cfast);
}

DOC_Interface* SimDocument::getParentDoc() const {
    m_camera.ask(OPERATION("getParentDoc"));
    const DOCKEY master = m_camera.device().heads().front()->key();
    return master == getKey() ? nullptr : m_context.docs.getDocAny(master);
}

DocList SimDocument::getHeadDocs(int /*mode*/) {
    m_camera.ask(OPERATION("getHeadDocs"));
    DocList docs;
    for (const auto& head : m_camera.device().heads()) {
        docs.append(m_context.docs.getDocAny(head->key()));
    }
    return docs;
}

QString SimDocument::getPartitionName(PARTITIONNUMBER partition) const {
    m_camera.askConnected(OPERATION("getPartitionName"));
    const QString name = m_camera.get(&CameraState::partitionNames).value(int(partition) - 1);
    return name.isEmpty() ? m_context.translator.translate(TextKey("Partition %1")).arg(partition) : name;
}

QStringList SimDocument::getAlerts() const {
    m_camera.askConnected(OPERATION("getAlerts"));
    return m_camera.get(&CameraState::alerts);
}

QString SimDocument::formatShutterSpeed(int value, int /*head*/) const {
    m_camera.ask(OPERATION("formatShutterSpeed"));
    return ShutterText(m_context.prefs).label(value);
}
