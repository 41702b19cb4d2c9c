#include "SimCameraOps.h"

#include "Camera.h"
#include "CameraBank.h"
#include "DOC_Interface.h"
#include "GatheredFailures.h"
#include "HostBatch.h"
#include "HostCalls.h"
#include "HostContext.h"
#include "Journal.h"
#include "Notices.h"
#include "Preferences.h"
#include "SimDocManager.h"
#include "SimRecorder.h"
#include "SimSaver.h"
#include "StatusFlags.h"
#include "SyncSource.h"
#include "TextKey.h"
#include "Translator.h"

#include <algorithm>

void SimCameraOps::searchCamera(const QString& address) {
    m_host.calls.change(OPERATION("ZebCameraOps::searchCamera"), {address});
    search(address.section(QLatin1Char('.'), 0, 2));
}

void SimCameraOps::discoverCameras() {
    m_host.calls.change(OPERATION("ZebCameraOps::discoverCameras"));
    search({});
}

/// An empty `network` stands for all.
void SimCameraOps::search(const QString& network) {
    const auto before = m_host.cameras.ofRig();
    const int answering = m_host.cameras.search(network);
    QStringList found;
    for (const Camera* camera : m_host.cameras.ofRig()) {
        if (std::find(before.begin(), before.end(), camera) == before.end()) {
            found.append(camera->name());
        }
    }
    const QString where = network.isEmpty() ? m_host.translator.translate(TextKey("the whole network"))
                                            : QString(network % QStringLiteral(".xxx"));
    const QString told = !found.isEmpty() ? m_host.translator.translate(TextKey("Search in %1: found %2."))
                         : answering > 0
                             ? m_host.translator.translate(
                                   TextKey("Search in %1: no further camera; those that answer are listed already."))
                             : m_host.translator.translate(TextKey("Search in %1: no camera answers."));
    m_host.notices.add(Message::Info,
                       found.isEmpty() ? told.arg(where) : told.arg(where, found.join(QStringLiteral(", "))));
}

void SimCameraOps::updateCameras() {
    m_host.calls.change(OPERATION("ZebCameraOps::updateCameras"));
    m_host.cameras.searchListed();
}

void SimCameraOps::setRecordRate(const DocList& docs, unsigned int rate) {
    command(OPERATION("ZebCameraOps::setRecordRate"), docs, {rate},
            [rate](Camera& camera) { camera.setRecordRate(rate); });
}

void SimCameraOps::setShutterSpeed(const DocList& docs, int speed) {
    command(OPERATION("ZebCameraOps::setShutterSpeed"), docs, {speed},
            [speed](Camera& camera) { camera.setShutterSpeed(speed); });
}

void SimCameraOps::setResolution(const DocList& docs, int width, int height) {
    command(OPERATION("ZebCameraOps::setResolution"), docs, {width, height}, [&](Camera& camera) {
        camera.setResolution({width, height});
    });
}

zeb::TriggerSettings SimCameraOps::getTriggerSettings() const {
    m_host.calls.ask(OPERATION("getTriggerSettings"));
    zeb::TriggerSettings settings;
    settings.kind = 1;
    settings.manualBeforePercent = m_host.prefs.value(QStringLiteral("trigger/manualBeforePercent")).toFloat();
    settings.randomFrames = m_host.prefs.value(QStringLiteral("trigger/randomFrames")).toInt();
    settings.randomTimes = m_host.prefs.value(QStringLiteral("trigger/randomTimes")).toInt();
    return settings;
}

void SimCameraOps::setTriggerMode(const DocList& docs, int kind, int mode, int reserved1, int reserved2,
                                  float manualBeforePercent, int randomFrames, int randomTimes) {
    zeb::TriggerSettings settings;
    settings.manualBeforePercent = manualBeforePercent;
    settings.randomFrames = randomFrames;
    settings.randomTimes = randomTimes;
    command(OPERATION("ZebCameraOps::setTriggerMode"), docs,
            {kind, mode, reserved1, reserved2, double(manualBeforePercent), randomFrames, randomTimes},
            [&](Camera& camera) { camera.setTriggerMode(mode, settings); });
}

void SimCameraOps::setRandomTriggerPhase(const DocList& docs, bool counted) {
    command(OPERATION("ZebCameraOps::setRandomTriggerPhase"), docs, {counted},
            [counted](Camera& camera) { camera.setRandomTriggerPhase(counted); });
}

void SimCameraOps::setReduceMode(const DocList& docs, bool on) {
    command(OPERATION("ZebCameraOps::setReduceMode"), docs, {on}, [on](Camera& camera) { camera.setReduceMode(on); });
}

void SimCameraOps::setLowLight(const DocList& docs, bool on) {
    command(OPERATION("ZebCameraOps::setLowLight"), docs, {on}, [on](Camera& camera) { camera.setLowLight(on); });
}

void SimCameraOps::setLowLightType(const DocList& docs, int type) {
    command(OPERATION("ZebCameraOps::setLowLightType"), docs, {type},
            [type](Camera& camera) { camera.setLowLightType(type); });
}

bool SimCameraOps::canSync(const DocList& docs) {
    m_host.calls.ask(OPERATION("canSync"));
    const DocKeyList keys = keysOf(docs);
    return !m_host.saver.isSaving() && m_host.recorder.stateOf(keys) == zeb::RecordLive &&
           std::all_of(keys.begin(), keys.end(), [this](DOCKEY key) {
               const Camera* camera = m_host.cameras.find(key);
               return camera && camera->get(&CameraState::connected) && !camera->isUnderWay();
           });
}

void SimCameraOps::syncCameras(const DocList& docs, DOC_Interface* master, int lport, bool external, bool generator,
                               int input, int frequency, int polarity) {
    SyncSource source;
    source.frequency = frequency;
    source.master = master ? master->getKey() : zeb::NoDocKey;
    if (!external) {
        source.name = SyncSource::Chain;
    } else if (lport == zeb::SyncPortHub && !generator) {
        source.name = SyncSource::Hub;
    }
    try {
        const DocKeyList keys = keysOf(docs);
        m_host.calls.change(OPERATION("ZebCameraOps::syncCameras"), {Journal::keyList(keys), source.master, lport,
                                                                     external, generator, input, frequency, polarity});
        // One after the other, for a chain is put together from its master on.
        GatheredFailures failures;
        for (const DOCKEY key : keys) {
            if (const auto camera = m_host.cameras.hold(key)) {
                failures.attempt([&] { camera->synchronise(source); });
            }
        }
        failures.rethrow();
    } catch (const std::exception& failure) {
        m_host.notices.add(Message::Error, QString::fromUtf8(failure.what()));
        throw;
    }
}

void SimCameraOps::setPartition(PARTITIONNUMBER number, int mode) {
    m_host.calls.change(OPERATION("ZebCameraOps::setPartition"), {number, mode});
    m_host.batch.runOrThrow(m_host.cameras.hold(m_host.cameras.keysOf(&CameraState::selected)),
                            [number](Camera& camera) { camera.setPartition(number); });
}

unsigned int SimCameraOps::getCurrentVariable() const {
    m_host.calls.ask(OPERATION("getCurrentVariable"));
    const Camera* camera = m_host.cameras.find(m_host.docs.currentKey());
    return camera ? camera->get(&CameraState::variable) : 0;
}

void SimCameraOps::setVariable(unsigned int channel) {
    m_host.calls.change(OPERATION("ZebCameraOps::setVariable"), {channel});
    m_host.batch.runOrThrow(m_host.cameras.hold(m_host.cameras.keysOf(&CameraState::selected)),
                            [channel](Camera& camera) { camera.setVariable(channel); });
}

void SimCameraOps::stopForPrefs() {
    m_host.calls.change(OPERATION("ZebCameraOps::stopForPrefs"));
    DocKeyList armed;
    for (const Camera* camera : m_host.cameras.connectedOfRig()) {
        if (camera->isArmed()) {
            armed.append(camera->key());
        }
    }
    m_host.batch.runOrThrow(m_host.cameras.hold(armed), [](Camera& camera) { camera.disarm(); });
}

bool SimCameraOps::isLowlight() const {
    m_host.calls.ask(OPERATION("isLowlight"));
    const auto cameras = m_host.cameras.connectedOfRig();
    return m_host.flags.isOn(StatusFlags::IsLowlight) ||
           std::any_of(cameras.begin(), cameras.end(), [](const Camera* camera) {
               return camera->get(&CameraState::selected) && camera->get(&CameraState::lowLight);
           });
}

bool SimCameraOps::hasLowLightCamera() const {
    m_host.calls.ask(OPERATION("hasLowLightCamera"));
    const auto cameras = m_host.cameras.connectedOfRig();
    return std::any_of(cameras.begin(), cameras.end(),
                       [](const Camera* camera) { return camera->get(&CameraState::lowLight); });
}

bool SimCameraOps::existLowlight() const {
    m_host.calls.ask(OPERATION("existLowlight"));
    const auto cameras = m_host.cameras.connectedOfRig();
    return m_host.flags.isOn(StatusFlags::ExistLowlight) ||
           std::any_of(cameras.begin(), cameras.end(),
                       [](const Camera* camera) { return camera->get(&CameraState::lowLight); });
}

bool SimCameraOps::isAllLowlight(bool on) const {
    m_host.calls.ask(OPERATION("isAllLowlight"));
    const auto cameras = m_host.cameras.connectedOfRig();
    return m_host.flags.isOn(on ? StatusFlags::IsAllLowlightON : StatusFlags::IsAllLowlightOFF) ||
           std::all_of(cameras.begin(), cameras.end(), [on](const Camera* camera) {
               return !camera->model().functions.contains(zeb::FunctionLowLight) ||
                      camera->get(&CameraState::lowLight) == on;
           });
}

bool SimCameraOps::isLensCalibration() const {
    m_host.calls.ask(OPERATION("isLensCalibration"));
    return m_host.flags.isOn(StatusFlags::IsLensCalibration);
}

bool SimCameraOps::isDirectSaving(int /*mode*/) const {
    m_host.calls.ask(OPERATION("isDirectSaving"));
    return m_host.flags.isOn(StatusFlags::IsDirectSaving);
}

bool SimCameraOps::isAllWrenLockDevice() const {
    m_host.calls.ask(OPERATION("isAllWrenLockDevice"));
    const auto cameras = m_host.cameras.connectedOfRig();
    const bool all = !cameras.empty() && std::all_of(cameras.begin(), cameras.end(), [](const Camera* camera) {
        return camera->get(&CameraState::locked);
    });
    return all || m_host.flags.isOn(StatusFlags::IsAllWrenLockDevice);
}

DocKeyList SimCameraOps::keysOf(const DocList& docs) {
    DocKeyList keys;
    for (const DOC_Interface* doc : docs) {
        keys.append(doc->getKey());
    }
    return keys;
}

void SimCameraOps::command(HostOperation operation, const DocList& docs, const QVariantList& args,
                           const std::function<void(Camera&)>& work) {
    const DocKeyList keys = keysOf(docs);
    m_host.calls.change(operation, QVariantList{Journal::keyList(keys)} + args);
    m_host.batch.runOrThrow(m_host.cameras.hold(keys), work);
}
