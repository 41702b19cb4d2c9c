#include "SimDocManager.h"

#include "Camera.h"
#include "Journal.h"
#include "Notices.h"
#include "Preferences.h"
#include "SimDocument.h"
#include "SimRecorder.h"
#include "TextKey.h"
#include "Translator.h"
#include "UnsavedGuard.h"
#include "UpdateCycle.h"

#include <algorithm>

SimDocManager::SimDocManager(const HostCalls& calls, CameraBank& cameras, const Preferences& prefs,
                             const SimAppStatus& appStatus, const StatusFlags& flags, const Translator& translator,
                             const SyncSignal& sync, const SimRecorder& recorder, UpdateCycle& updates,
                             Notices& notices, const UnsavedGuard& unsaved,
                             std::function<void(const std::exception&)> tellFailure)
    : m_calls(calls),
      m_cameras(cameras),
      m_flags(flags),
      m_updates(updates),
      m_unsaved(unsaved),
      m_tellFailure(std::move(tellFailure)),
      m_selection(cameras),
      m_context{calls, cameras, m_tools, prefs, appStatus, translator, sync, recorder, notices, *this},
      m_turns(m_context) {}

void SimDocManager::forgetDocs() {
    m_turns.forget();
    m_tools.forgetDocs();
    m_selection.forget();
}

DOC_Interface* SimDocManager::getDocAny(DOCKEY key) {
    Camera* camera = m_cameras.find(key);
    return camera ? m_turns.document(*camera) : nullptr;
}

DocList SimDocManager::getCameraDocs() {
    m_calls.ask(OPERATION("getCameraDocs"));
    DocList docs;
    for (const DOCKEY key : m_cameras.keys()) {
        docs.append(getDocAny(key));
    }
    return docs;
}

DocList SimDocManager::getSyncableDocs(int /*mode*/) {
    m_calls.ask(OPERATION("getSyncableDocs"));
    DocList docs;
    for (const Camera* camera : m_cameras.all()) {
        if (camera->get(&CameraState::connected) && camera->model().syncCapable) {
            docs.append(getDocAny(camera->key()));
        }
    }
    return docs;
}

bool SimDocManager::isRecordAreaEnabled() const {
    m_calls.ask(OPERATION("isRecordAreaEnabled"));
    return m_context.prefs.value(QStringLiteral("recording/area")).toBool();
}

void SimDocManager::selectDoc(DOCKEY key) {
    m_calls.change(OPERATION("ZebDocManager::selectDoc"), {key});
    if (Camera* camera = m_cameras.find(key)) {
        camera->ask(OPERATION("selectDoc"));
        m_selection.select(*camera);
    }
}

void SimDocManager::deselectDoc(DOCKEY key) {
    m_calls.change(OPERATION("ZebDocManager::deselectDoc"), {key});
    if (Camera* camera = m_cameras.find(key)) {
        camera->ask(OPERATION("deselectDoc"));
        m_selection.deselect(*camera);
    }
}

void SimDocManager::setSelectedDocs(const DocKeyList& keys, int mode) {
    m_calls.change(OPERATION("ZebDocManager::setSelectedDocs"), {Journal::keyList(keys), mode});
    m_selection.selectOnly(keys);
}

void SimDocManager::connectDocs(const DocKeyList& keys) {
    m_calls.change(OPERATION("ZebDocManager::connectDocs"), {Journal::keyList(keys)});
    forEachKey(keys, [](Camera& camera) {
        if (!camera.get(&CameraState::connected)) {
            camera.connect();
        }
    });
}

void SimDocManager::disconnectDocs(const DocKeyList& keys) {
    m_calls.change(OPERATION("ZebDocManager::disconnectDocs"), {Journal::keyList(keys)});
    forEachKey(keys, [](Camera& camera) {
        if (camera.get(&CameraState::connected)) {
            camera.disconnect();
        }
    });
}

void SimDocManager::forEachKey(const DocKeyList& keys, const std::function<void(Camera&)>& work) {
    try {
        m_cameras.forEach(keys, work);
    } catch (const std::exception& e) {
        m_tellFailure(e);
    }
}

void SimDocManager::deleteAllDocs(int kind, int mode) {
    m_calls.change(OPERATION("ZebDocManager::deleteAllDocs"), {kind, mode});
    if (m_context.recorder.isUnderWay()) {
        const QString text = TextKey("Cameras are armed or recording. None was deleted.");
        throw std::runtime_error(m_context.translator.translate(text).toStdString());
    }
    m_cameras.forgetAll();
    const QStringList unsaved = m_unsaved.lines(lostByClosing(heldRecordings(m_cameras)));
    if (!unsaved.isEmpty()) {
        const QString text = TextKey("Images that nobody has saved are out of reach until a search:");
        m_context.notices.add(
            Message::Warn, m_context.translator.translate(text) % QLatin1Char('\n') % unsaved.join(QLatin1Char('\n')));
    }
    m_selection.forget();
    m_updates.request();
}

void SimDocManager::editDoc(DOCKEY key) {
    m_calls.change(OPERATION("ZebDocManager::editDoc"), {key});
    if (m_editor && m_cameras.find(key)) {
        m_editor(key);
    }
}

bool SimDocManager::sharesDeviceWithLockedHead(DOC_Interface* doc, bool shutter, bool resolution) {
    m_calls.ask(OPERATION("sharesDeviceWithLockedHead"));
    const Camera* camera = m_cameras.find(doc->getKey());
    if (!camera) {
        return false;
    }
    const CameraModel& model = camera->model();
    if ((shutter && !model.sharesShutter) || (resolution && !model.sharesResolution)) {
        return false;
    }
    const auto& heads = camera->device().heads();
    return std::any_of(heads.begin(), heads.end(),
                       [camera](const auto& head) { return head.get() != camera && head->get(&CameraState::locked); });
}

void SimDocManager::refreshDocList(int mode) {
    m_calls.change(OPERATION("ZebDocManager::refreshDocList"), {mode});
    m_updates.request();
}
