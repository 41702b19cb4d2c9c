#include "SimDocManager.h"

#include "Camera.h"
#include "CameraBank.h"
#include "HostCalls.h"
#include "Journal.h"
#include "Notices.h"
#include "Preferences.h"
#include "SimDocument.h"
#include "SimRecorder.h"
#include "StatusFlags.h"
#include "TextKey.h"
#include "Translator.h"
#include "UnsavedGuard.h"
#include "UpdateCycle.h"

#include <QThread>

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
      m_context{calls, cameras, m_tools, prefs, appStatus, translator, sync, recorder, notices, *this} {}

std::size_t SimDocManager::handedOut() const {
    const auto turn = m_turns.find(QThread::currentThread()->loopLevel());
    return turn != m_turns.end() && turn->second ? turn->second->count() : 0;
}

DocTurn& SimDocManager::turn() {
    QPointer<DocTurn>& turn = m_turns[QThread::currentThread()->loopLevel()];
    if (!turn) {
        turn = new DocTurn(&m_turnOwner);
    }
    return *turn;
}

void SimDocManager::endTurn() {
    delete m_turns[QThread::currentThread()->loopLevel()];
}

void SimDocManager::forgetDocs() {
    m_turns.clear();
    m_tools.forgetDocs();
    m_current = zeb::NoDocKey;
}

DOC_Interface* SimDocManager::getDoc(DOCKEY key, int /*mode*/) {
    return getDocAny(key);
}

DOC_Interface* SimDocManager::getDocAny(DOCKEY key) {
    Camera* camera = m_cameras.find(key);
    return camera ? turn().document(*camera, m_context) : nullptr;
}

DOC_Interface* SimDocManager::getCurrentDoc() {
    m_calls.ask(OPERATION("getCurrentDoc"));
    return getDocAny(currentKey());
}

bool SimDocManager::isCurrentDoc(DOCKEY key) const {
    m_calls.ask(OPERATION("isCurrentDoc"));
    const Camera* camera = m_cameras.find(key);
    return camera && camera->get(&CameraState::selected) && key == currentKey();
}

DOCKEY SimDocManager::currentKey() const {
    const Camera* current = m_cameras.find(m_current);
    if (current && current->get(&CameraState::selected)) {
        return m_current;
    }
    m_current = zeb::NoDocKey;
    for (const Camera* camera : m_cameras.all()) {
        if (camera->get(&CameraState::selected)) {
            m_current = camera->key();
            break;
        }
    }
    return m_current;
}

DOCKEY SimDocManager::getCurrentDockey(int /*mode*/) const {
    m_calls.ask(OPERATION("getCurrentDockey"));
    return currentKey();
}

void SimDocManager::setCurrentDoc(DOCKEY key, int mode) {
    m_calls.change(OPERATION("ZebDocManager::setCurrentDoc"), {key, mode});
    const Camera* camera = m_cameras.find(key);
    if (camera && camera->get(&CameraState::selected)) {
        m_current = key;
    }
}

DocKeyList SimDocManager::getDocKeys(int /*mode*/) const {
    m_calls.ask(OPERATION("getDocKeys"));
    return m_cameras.keys();
}

DocKeyList SimDocManager::getConnectedDocKeys(int /*mode*/) const {
    m_calls.ask(OPERATION("getConnectedDocKeys"));
    return m_cameras.keysOf(&CameraState::connected);
}

DocKeyList SimDocManager::getSelectedDocKeys(int /*mode*/) const {
    m_calls.ask(OPERATION("getSelectedDocKeys"));
    return m_cameras.keysOf(&CameraState::selected);
}

DocKeyList SimDocManager::getLiveDocKeys(int /*mode*/, int /*order*/) const {
    m_calls.ask(OPERATION("getLiveDocKeys"));
    return m_cameras.keys();
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

int SimDocManager::getDocCount() const {
    m_calls.ask(OPERATION("getDocCount"));
    return m_flags.isOn(QStringLiteral("IsNoneDocument")) ? 0 : int(m_cameras.all().size());
}

int SimDocManager::getSelectedDocCount() const {
    m_calls.ask(OPERATION("getSelectedDocCount"));
    return m_cameras.keysOf(&CameraState::selected).size();
}

bool SimDocManager::hasWaveformData() const {
    m_calls.ask(OPERATION("hasWaveformData"));
    return false;
}

bool SimDocManager::isWaveDataAcquisition() const {
    m_calls.ask(OPERATION("isWaveDataAcquisition"));
    return m_flags.isOn(QStringLiteral("IsWaveDataAcquisition"));
}

bool SimDocManager::isConflictPartition(int /*mode*/) const {
    m_calls.ask(OPERATION("isConflictPartition"));
    return m_flags.isOn(QStringLiteral("IsConflictPartition"));
}

bool SimDocManager::isPhaseAdjusting() const {
    m_calls.ask(OPERATION("isPhaseAdjusting"));
    return m_flags.isOn(QStringLiteral("IsPhaseAdjusting"));
}

bool SimDocManager::isRecordAreaEnabled() const {
    m_calls.ask(OPERATION("isRecordAreaEnabled"));
    return m_context.prefs.value(QStringLiteral("recording/area")).toBool();
}

void SimDocManager::selectDoc(DOCKEY key) {
    m_calls.change(OPERATION("ZebDocManager::selectDoc"), {key});
    if (Camera* camera = m_cameras.find(key)) {
        camera->ask(OPERATION("selectDoc"));
        const DOCKEY current = currentKey();
        camera->set(&CameraState::selected, true);
        m_current = current == zeb::NoDocKey ? key : current;
    }
}

void SimDocManager::deselectDoc(DOCKEY key) {
    m_calls.change(OPERATION("ZebDocManager::deselectDoc"), {key});
    if (Camera* camera = m_cameras.find(key)) {
        camera->ask(OPERATION("deselectDoc"));
        camera->set(&CameraState::selected, false);
    }
}

void SimDocManager::setSelectedDocs(const DocKeyList& keys, int mode) {
    m_calls.change(OPERATION("ZebDocManager::setSelectedDocs"), {Journal::keyList(keys), mode});
    selectOnly(keys);
}

void SimDocManager::selectOnly(const DocKeyList& keys) {
    for (Camera* camera : m_cameras.all()) {
        camera->set(&CameraState::selected, keys.contains(camera->key()));
    }
}

void SimDocManager::selectAllDocs(QObject* /*sender*/) {
    m_calls.change(OPERATION("ZebDocManager::selectAllDocs"));
    for (Camera* camera : m_cameras.all()) {
        camera->set(&CameraState::selected, true);
    }
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
    m_current = zeb::NoDocKey;
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

void SimDocManager::beginDocEdit() {
    m_calls.change(OPERATION("ZebDocManager::beginDocEdit"));
}

void SimDocManager::beginDocEditNotify() {
    m_calls.change(OPERATION("ZebDocManager::beginDocEditNotify"));
}

void SimDocManager::endDocEdit() {
    m_calls.change(OPERATION("ZebDocManager::endDocEdit"));
}

void SimDocManager::commitDocEdit() {
    m_calls.change(OPERATION("ZebDocManager::commitDocEdit"));
}

void SimDocManager::refreshDocList(int mode) {
    m_calls.change(OPERATION("ZebDocManager::refreshDocList"), {mode});
    m_updates.request();
}

void SimDocManager::setQuickTool(const QString& tool, bool on) {
    m_calls.change(OPERATION("ZebDocManager::setQuickTool"), {tool, on});
    m_tools.setQuick(tool, on);
}

void SimDocManager::setActiveQuickTool(const QString& tool) {
    m_calls.change(OPERATION("ZebDocManager::setActiveQuickTool"), {tool});
    m_tools.setActive(tool);
}

void SimDocManager::toolSelect(const QString& tool, bool on) {
    m_calls.change(OPERATION("ZebDocManager::toolSelect"), {tool, on});
    m_tools.choose(tool, currentKey(), on);
}

void SimDocManager::toolSelectAll(const QString& tool, bool all, bool on) {
    m_calls.change(OPERATION("ZebDocManager::toolSelectAll"), {tool, all, on});
    for (const DOCKEY key : all ? m_cameras.keys() : DocKeyList{currentKey()}) {
        m_tools.choose(tool, key, on);
    }
}

void SimDocManager::toolBegin(int mode, const QString& tool) {
    m_calls.change(OPERATION("ZebDocManager::toolBegin"), {mode, tool});
}

void SimDocManager::toolEnd(const QString& tool) {
    m_calls.change(OPERATION("ZebDocManager::toolEnd"), {tool});
}

void SimDocManager::toolApply(const QString& tool) {
    m_calls.change(OPERATION("ZebDocManager::toolApply"), {tool});
}
