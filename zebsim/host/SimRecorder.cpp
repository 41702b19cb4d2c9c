#include "SimRecorder.h"

#include "Camera.h"
#include "CameraBank.h"
#include "HostBatch.h"
#include "HostCalls.h"
#include "HostContext.h"
#include "HostEvents.h"
#include "Notices.h"
#include "PluginSignal.h"
#include "Preferences.h"
#include "SimAppStatus.h"
#include "StatusFlags.h"
#include "TextKey.h"
#include "Translator.h"
#include "UnsavedGuard.h"
#include "UpdateCycle.h"

#include <algorithm>
#include <utility>

SimRecorder::SimRecorder(const HostContext& host)
    : m_host(host),
      m_run(host.cameras, host.batch, host.clock, host.translator,
            RecordRun::Listener{
                [&host] { host.updates.request(); },
                [&host](const QString& text) { host.notices.add(Message::Error, text); },
                [&host] { Q_EMIT host.events.shootEnded(); },
                [this](bool recorded) {
                    m_owedEnd = recorded;
                    QMetaObject::invokeMethod(
                        &m_receiver, [this] { deliverEnd(); }, Qt::QueuedConnection);
                },
            }) {}

int SimRecorder::getRecStatus(const DocKeyList& keys) const {
    m_host.calls.ask(OPERATION("getRecStatus"));
    return stateOf(keys);
}

int SimRecorder::getRecordingState() const {
    m_host.calls.ask(OPERATION("getRecordingState"));
    return state();
}

bool SimRecorder::isRecording() const {
    m_host.calls.ask(OPERATION("isRecording"));
    return state() == zeb::RecordRecording ||
           isAny([](const Camera& camera) { return camera.recordState() == zeb::RecordRecording; });
}

int SimRecorder::state() const {
    DocKeyList keys;
    for (const Camera* camera : m_host.cameras.ofRig()) {
        keys.append(camera->key());
    }
    return stateOf(keys);
}

int SimRecorder::stateOf(const DocKeyList& keys) const {
    if (m_owedEnd) {
        return zeb::RecordRecording;
    }
    const QList<QPair<StatusFlags::Flag, zeb::RecordStatus>> states{{StatusFlags::IsRecordingError, zeb::RecordError},
                                                                    {StatusFlags::IsRecording, zeb::RecordRecording},
                                                                    {StatusFlags::IsReady, zeb::RecordReady},
                                                                    {StatusFlags::IsCTSReady, zeb::RecordCtsReady}};
    for (const auto& [flag, status] : states) {
        if (m_host.flags.isOn(flag)) {
            return status;
        }
    }
    return m_run.statusOf(keys);
}

bool SimRecorder::isUnderWay() const {
    const int whole = state();
    return (whole != zeb::RecordLive && whole != zeb::RecordError) ||
           isAny([](const Camera& camera) { return camera.isUnderWay(); });
}

bool SimRecorder::isAny(const std::function<bool(const Camera&)>& wanted) const {
    const auto cameras = m_host.cameras.connectedOfRig();
    return std::any_of(cameras.begin(), cameras.end(), [&](const Camera* camera) { return wanted(*camera); });
}

void SimRecorder::startRecReady() {
    m_host.calls.change(OPERATION("ZebRecorder::startRecReady"));
    arm();
}

/// The cameras have not answered the last command, and the user is told so.
bool SimRecorder::isBusy() {
    if (m_run.isCommanding()) {
        m_host.notices.add(Message::Info, TextKey("The cameras have not answered the last command yet."));
    }
    return m_run.isCommanding();
}

void SimRecorder::arm() {
    if (isBusy() || hasEnded()) {
        return;
    }
    if (!m_host.unsaved.mayRecordOver([this] { return m_run.keysToArm(); })) {
        m_host.updates.request();
        sendToPlugins(m_host.appStatus, "signalEndRecording");
    } else if (!hasEnded()) {
        // A recording may have come and gone while the question stood.
        m_run.arm();
    }
}

void SimRecorder::triggerRecording() {
    m_host.calls.change(OPERATION("ZebRecorder::triggerRecording"));
    trigger();
}

void SimRecorder::trigger() {
    if (isBusy()) {
        return;
    }
    if (m_host.flags.isOn(StatusFlags::IsTriggerTesting)) {
        m_host.notices.add(Message::Info, TextKey("Trigger test: the trigger has come. Nothing is recorded."));
    } else {
        m_run.trigger(m_host.prefs.value(QStringLiteral("recording/area")).toBool(), m_host.unsaved.isOn());
    }
}

void SimRecorder::stopRecording() {
    m_host.calls.change(OPERATION("ZebRecorder::stopRecording"));
    stop();
}

void SimRecorder::stop() {
    if (!isBusy()) {
        m_run.stop();
    }
}

void SimRecorder::cancelRecording(bool recording) {
    m_host.calls.change(OPERATION("ZebRecorder::cancelRecording"), {recording});
    endByCancel();
}

void SimRecorder::cancel() {
    if (endByCancel() && !m_run.isRunning()) {
        sendToPlugins(m_host.appStatus, "signalEndRecording");
    }
}

bool SimRecorder::endByCancel() {
    if (isBusy() || hasEnded()) {
        return false;
    }
    m_run.cancel();
    // Whoever cancels knows that it is over.
    if (std::exchange(m_owedEnd, std::nullopt).value_or(false)) {
        Q_EMIT m_host.events.somethingRecorded();
        m_host.notices.add(Message::Info,
                           TextKey("The recording was ended. The cameras keep what they have; memory mode shows it."));
    }
    return true;
}

bool SimRecorder::hasEnded() {
    m_run.proceed();
    const bool isOwed = m_owedEnd.has_value();
    deliverEnd();
    return isOwed;
}

void SimRecorder::press() {
    if (m_host.appStatus.mode() != zeb::LiveMode || hasEnded()) {
        return;
    }
    switch (state()) {
        case zeb::RecordLive:
            arm();
            break;
        case zeb::RecordReady:
            trigger();
            break;
        case zeb::RecordRecording:
            stop();
            break;
        default:
            break;
    }
}

void SimRecorder::deliverEnd() {
    const std::optional<bool> recorded = std::exchange(m_owedEnd, std::nullopt);
    if (!recorded) {
        return;
    }
    // It has been a recording for whoever asked.
    m_host.updates.request();
    sendToPlugins(m_host.appStatus, "signalEndRecording");
    if (*recorded) {
        Q_EMIT m_host.events.somethingRecorded();
        if (m_host.appStatus.mode() == zeb::LiveMode) {
            m_host.appStatus.enterMode(zeb::MemoryMode);
        }
    }
}
