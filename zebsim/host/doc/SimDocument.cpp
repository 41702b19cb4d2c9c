#include "SimDocument.h"

#include "PartitionName.h"
#include "ShutterText.h"
#include "SimAppStatus.h"
#include "SimDocManager.h"

SimDocument::SimDocument(std::shared_ptr<Camera> camera, const HostContext& host)
    : DocTopic(*camera, host),
      m_held(std::move(camera)),
      m_key(m_camera.key()),
      m_activity(m_camera, host),
      m_lock(m_camera, host),
      m_frames(m_camera, host),
      m_image(m_camera, host),
      m_control(m_camera, host),
      m_head(m_camera, host),
      m_storage(m_camera, host) {}

DOC_Interface* SimDocument::getParentDoc() const {
    const DOCKEY master = ask(OPERATION("getParentDoc")).device().heads().front()->key();
    return master == getKey() ? nullptr : m_host.docs.getDocAny(master);
}

DocList SimDocument::getHeadDocs(int /*mode*/) {
    DocList docs;
    for (const auto& head : ask(OPERATION("getHeadDocs")).device().heads()) {
        docs.append(m_host.docs.getDocAny(head->key()));
    }
    return docs;
}

bool SimDocument::isMemoryData() const {
    return m_host.appStatus.mode() == zeb::MemoryMode && !m_camera.isFile();
}

QList<PARTITIONNUMBER> SimDocument::getPartitionList() const {
    QList<PARTITIONNUMBER> partitions;
    for (const Recording& recording : m_camera.recordings()) {
        partitions.append(recording.partition);
    }
    return partitions;
}

QString SimDocument::getPartitionName(PARTITIONNUMBER partition) const {
    return partitionName(askConnected(OPERATION("getPartitionName"), &CameraState::partitionNames), partition);
}

QString SimDocument::formatShutterSpeed(int value, int /*head*/) const {
    ask(OPERATION("formatShutterSpeed"));
    return ShutterText(m_host.prefs).label(value);
}
