#include "SimDocument.h"

#include "ShutterText.h"
#include "SimDocManager.h"
#include "TextKey.h"
#include "Translator.h"

SimDocument::SimDocument(Camera& camera, const DocContext& context)
    : DocTopic(camera, context),
      m_key(camera.key()),
      m_activity(camera, context),
      m_lock(camera, context),
      m_frames(camera, context),
      m_image(camera, context),
      m_control(camera, context),
      m_head(camera, context),
      m_storage(camera, context) {}

DOC_Interface* SimDocument::getParentDoc() const {
    const DOCKEY master = ask(OPERATION("getParentDoc")).device().heads().front()->key();
    return master == getKey() ? nullptr : m_context.docs.getDocAny(master);
}

DocList SimDocument::getHeadDocs(int /*mode*/) {
    DocList docs;
    for (const auto& head : ask(OPERATION("getHeadDocs")).device().heads()) {
        docs.append(m_context.docs.getDocAny(head->key()));
    }
    return docs;
}

QString SimDocument::getPartitionName(PARTITIONNUMBER partition) const {
    const QString name =
        askConnected(OPERATION("getPartitionName"), &CameraState::partitionNames).value(int(partition) - 1);
    return name.isEmpty() ? m_context.translator.translate(TextKey("Partition %1")).arg(partition) : name;
}

QString SimDocument::formatShutterSpeed(int value, int /*head*/) const {
    ask(OPERATION("formatShutterSpeed"));
    return ShutterText(m_context.prefs).label(value);
}
