#include "SimDocManager.h"

#include "Camera.h"
#include "HostBatch.h"
#include "HostMessages.h"
#include "HostWindows.h"
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

void SimDocManager::forgetDocs() {
    m_turns.forget();
    m_tools.forgetDocs();
    m_selection.forget();
}

DOC_Interface* SimDocManager::getDocAny(DOCKEY key) {
    const auto camera = m_host.cameras.hold(key);
    return camera ? m_turns.document(camera) : nullptr;
}

DocList SimDocManager::getCameraDocs() {
    m_host.calls.ask(OPERATION("getCameraDocs"));
    DocList docs;
    for (const Camera* camera : m_host.cameras.ofRig()) {
        docs.append(getDocAny(camera->key()));
    }
    return docs;
}

DocList SimDocManager::getSyncableDocs(int /*mode*/) {
    m_host.calls.ask(OPERATION("getSyncableDocs"));
    DocList docs;
    for (const Camera* camera : m_host.cameras.ofRig()) {
        if (camera->get(&CameraState::connected) && camera->model().syncCapable) {
            docs.append(getDocAny(camera->key()));
        }
    }
    return docs;
}

DocKeyList SimDocManager::getTemporarySaveDocKeys() const {
    m_host.calls.ask(OPERATION("getTemporarySaveDocKeys"));
    DocKeyList keys = m_temporarySave + m_media.docs().keys();
    keys.erase(std::remove_if(keys.begin(), keys.end(), [this](DOCKEY key) { return !m_host.cameras.find(key); }),
               keys.end());
    return keys;
}

bool SimDocManager::isRecordAreaEnabled() const {
    m_host.calls.ask(OPERATION("isRecordAreaEnabled"));
    return m_host.prefs.value(QStringLiteral("recording/area")).toBool();
}

void SimDocManager::selectDoc(DOCKEY key) {
    m_host.calls.change(OPERATION("ZebDocManager::selectDoc"), {key});
    if (Camera* camera = m_host.cameras.find(key)) {
        camera->ask(OPERATION("selectDoc"));
        m_selection.select(*camera);
    }
}

void SimDocManager::deselectDoc(DOCKEY key) {
    m_host.calls.change(OPERATION("ZebDocManager::deselectDoc"), {key});
    if (Camera* camera = m_host.cameras.find(key)) {
        camera->ask(OPERATION("deselectDoc"));
        m_selection.deselect(*camera);
    }
}

void SimDocManager::setSelectedDocs(const DocKeyList& keys, int mode) {
    m_host.calls.change(OPERATION("ZebDocManager::setSelectedDocs"), {Journal::keyList(keys), mode});
    m_selection.selectOnly(keys);
}

void SimDocManager::connectDocs(const DocKeyList& keys) {
    m_host.calls.change(OPERATION("ZebDocManager::connectDocs"), {Journal::keyList(keys)});
    onDevices(keys, [](Camera& camera) {
        if (!camera.get(&CameraState::connected)) {
            camera.connect();
        }
    });
}

void SimDocManager::disconnectDocs(const DocKeyList& keys) {
    m_host.calls.change(OPERATION("ZebDocManager::disconnectDocs"), {Journal::keyList(keys)});
    onDevices(keys, [](Camera& camera) {
        if (camera.get(&CameraState::connected)) {
            camera.disconnect();
        }
    });
}

void SimDocManager::disconnectDoc(DOCKEY key, int mode) {
    m_host.calls.change(OPERATION("ZebDocManager::disconnectDoc"), {key, mode});
    const auto camera = m_host.cameras.hold(key);
    if (camera && camera->get(&CameraState::connected)) {
        camera->disconnectForPreset();
    }
}

void SimDocManager::onDevices(const DocKeyList& keys, const std::function<void(Camera&)>& work) {
    try {
        m_host.batch.runOrThrow(m_host.cameras.holdDevices(keys), work);
    } catch (const std::exception& e) {
        m_host.messages.tellFailure(e);
    }
}

void SimDocManager::deleteAllDocs(int kind, int mode) {
    m_host.calls.change(OPERATION("ZebDocManager::deleteAllDocs"), {kind, mode});
    if (m_host.recorder.isUnderWay()) {
        const QString text = TextKey("Cameras are armed or recording. None was deleted.");
        throw std::runtime_error(m_host.translator.translate(text).toStdString());
    }
    m_host.cameras.forgetAll();
    const QStringList unsaved = m_host.unsaved.lines(lostByClosing(heldRecordings(m_host.cameras)));
    if (!unsaved.isEmpty()) {
        const QString text = TextKey("Images that nobody has saved are out of reach until a search:");
        m_host.notices.add(Message::Warn,
                           m_host.translator.translate(text) % QLatin1Char('\n') % unsaved.join(QLatin1Char('\n')));
    }
    m_selection.forget();
    m_host.updates.request();
}

void SimDocManager::editDoc(DOCKEY key) {
    m_host.calls.change(OPERATION("ZebDocManager::editDoc"), {key});
    if (m_host.cameras.find(key)) {
        m_host.windows->editCamera(key);
    }
}

bool SimDocManager::sharesDeviceWithLockedHead(DOC_Interface* doc, bool shutter, bool resolution) {
    m_host.calls.ask(OPERATION("sharesDeviceWithLockedHead"));
    const Camera* camera = m_host.cameras.find(doc->getKey());
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

void SimDocManager::loadSettingsFile(const QString& path, int mode, int reserved) {
    m_host.calls.change(OPERATION("ZebDocManager::loadSettingsFile"), {path, mode, reserved});
    m_settings.load(path);
}

void SimDocManager::saveSettingsFile(const QString& path, int mode) {
    m_host.calls.change(OPERATION("ZebDocManager::saveSettingsFile"), {path, mode});
    m_settingsSave.run(path);
}

void SimDocManager::refreshDocList(int mode) {
    m_host.calls.change(OPERATION("ZebDocManager::refreshDocList"), {mode});
    m_host.updates.request();
}
