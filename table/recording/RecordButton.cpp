#include "RecordButton.h"

#include "ConnectedDocs.h"
#include "DOC_Control.h"
#include "DOC_Frames.h"
#include "DOC_Interface.h"
#include "DOC_Lock.h"
#include "DeviceAlerts.h"
#include "DeviceSpeed.h"
#include "NamedFailure.h"
#include "RecordChecks.h"
#include "RecordProblems.h"
#include "SettingsKeys.h"
#include "SignalSources.h"
#include "SyncPreferences.h"
#include "SyncSettings.h"
#include "TableState.h"
#include "TextKey.h"
#include "UTL_Messages.h"
#include "ZebCycleFailure.h"
#include "ZebDocManager.h"
#include "ZebHost.h"
#include "ZebRecorder.h"
#include "ZebSaver.h"

#include <QMessageBox>

namespace {

/// The line of a camera that must be locked and is not, or does not tell: `failure` says why.
ActionResult::Row rowInTheWay(const ZebHost& host, DOC_Interface& doc, const QString& failure) {
    ActionResult::Row row{doc.getKey(), {}, host.translate(TextKey("ON")), {}, QStringLiteral("unanswered"), failure};
    try {
        row.name = doc.control().getCameraName(1);
        const bool isLowLight = failure.isEmpty() && doc.control().isLowLightMode();
        row.reason = !failure.isEmpty() ? failure
                     : isLowLight       ? host.translate(TextKey("it is in low light mode"))
                                        : host.translate(TextKey("it is not locked"));
    } catch (...) {
        row.reason = failure.isEmpty() ? currentFailureText() : failure;
    }
    if (failure.isEmpty()) {
        row.got = host.translate(TextKey("OFF"));
        row.verdict = QStringLiteral("refused");
    }
    return row;
}

}  // namespace

void RecordButton::press() {
    if (!m_host.isLiveMode()) {
        return;
    }
    ZebRecorder& recorder = m_host.recorder();
    switch (recorder.getRecordingState()) {
        case zeb::RecordLive:
            break;
        case zeb::RecordReady:
            recorder.triggerRecording();
            return;
        case zeb::RecordRecording:
            recorder.stopRecording();
            return;
        default:
            return;
    }
    GatheredFailures failures;
    if (areCamerasLocked() && userTakesProblems() && prepareSignal(failures) && canArm()) {
        RecordChecks(m_host).clear(failures);
        setAreas(failures);
        try {
            arm();
        } catch (...) {
            tell(failures);
            throw;
        }
        tell(failures);
    }
}

/// The cameras are armed, and nobody may be kept from their trigger. What the user has read before comes no second
/// time.
void RecordButton::tell(const GatheredFailures& failures) {
    failures.log();
    QStringList lines = failures.lines();
    for (const QString& line : m_told) {
        lines.removeAll(line);
    }
    if (!lines.isEmpty()) {
        m_host.errorHandler(ZebCycleFailure(lines.join(QLatin1Char('\n')).toStdString()));
    }
}

void RecordButton::cancel() {
    if (m_host.isLiveMode()) {
        ZebRecorder& recorder = m_host.recorder();
        recorder.cancelRecording(recorder.getRecordingState() == zeb::RecordRecording);
    }
    if (!m_host.saver().isBgSaving()) {
        m_state.recordRunning = false;
    }
}

DocList RecordButton::connected(GatheredFailures& failures) const {
    ZebDocManager& documents = m_host.docManager();
    return connectedDocs(documents, documents.getConnectedDocKeys(1), failures);
}

bool RecordButton::canArm() const {
    return m_host.isLiveMode() && m_host.recorder().getRecordingState() == zeb::RecordLive;
}

bool RecordButton::areCamerasLocked() {
    if (!m_host.getPrefBool(QStringLiteral("wren/display/lock"))) {
        return true;
    }
    GatheredFailures unread;
    QVector<ActionResult::Row> inTheWay;
    GatheredFailures unknown;  // named among the problems
    for (DOC_Interface* doc : connected(unknown)) {
        bool locked = false;
        GatheredFailures own;
        attemptOn(*doc, own, [&] { locked = doc->lock().isParamLocked(); });
        if (!locked) {
            inTheWay.append(rowInTheWay(m_host, *doc, own.text()));
        }
        unread.note(own.text());
    }
    if (inTheWay.isEmpty()) {
        return true;
    }
    m_state.result = ActionResult(QStringLiteral("record"), inTheWay);
    m_state.result->log();
    unread.log();
    const QStringList lines{m_host.translate(TextKey("Lock all connected cameras."))};
    m_host.alert((lines + unread.lines()).join(QLatin1Char('\n')), m_parent);
    return false;
}

QStringList RecordButton::problems() {
    ZebDocManager& documents = m_host.docManager();
    const SignalSources signal(m_host, m_state.sync);
    const bool hasSignal = signal.givesFrequency();
    QList<CameraAlerts> cameras;
    for (const DOCKEY key : documents.getConnectedDocKeys(1)) {
        DOC_Interface* doc = documents.getDoc(key, 1);
        if (doc == nullptr) {
            continue;
        }
        CameraAlerts camera;
        GatheredFailures unread;
        bool connected = false;
        attemptOn(*doc, unread, [&] { connected = doc->isConnected(); });
        if (connected) {
            attemptOn(*doc, unread, [&] { camera.cameraName = doc->control().getCameraName(1); });
            attemptOn(*doc, unread, [&] { camera.device = alertsOfDevice(doc->getParentDoc()); });
            attemptOn(*doc, unread, [&] { camera.differsFromSignal = hasSignal && !signal.agreesWith(*doc); });
            attemptOn(*doc, unread, [&] { camera.own = doc->getAlerts(); });
        }
        unread.log();
        camera.own += unread.lines();
        m_told += unread.lines();
        cameras.append(camera);
    }
    return problemLines(cameras, m_host.translate(SignalDiffersText));
}

bool RecordButton::userTakesProblems() {
    QStringList lines = problems();
    if (lines.isEmpty()) {
        return true;
    }
    lines.prepend(m_host.translate(TextKey("Problem with camera.")));
    const ButtonTexts buttons{{QMessageBox::Ok, m_host.translate(TextKey("Yes"))},
                              {QMessageBox::Cancel, m_host.translate(TextKey("No"))}};
    return UTL_Messages::warnOkCancel(lines.join(QLatin1Char('\n')), m_host, m_parent, buttons) && canArm();
}

/// False when the cameras should go on the common signal and were not handed over.
bool RecordButton::prepareSignal(GatheredFailures& failures) {
    if (!syncprefs::isInUse(m_host)) {
        return true;
    }
    if (m_host.getPrefBool(settingskeys::RecordingSync)) {
        m_host.docManager().selectAllDocs(nullptr);
        SyncSettings settings(m_host, m_state.sync);
        const SyncView view = settings.look();
        if (view.inUse && view.executable && !settings.synchronise(m_bridge)) {
            return false;
        }
    }
    if (m_host.getPrefBool(settingskeys::DeviceSpeedPlaying) &&
        !setDeviceSpeedPlaying(m_host, m_state.sync, connected(failures), failures)) {
        m_host.warn(m_host.translate(TextKey(
                        "There are some cameras that are not synchronized shooting because the shooting speed of the "
                        "device is faster than the sync frequency.")),
                    m_parent);
    }
    return true;
}

void RecordButton::setAreas(GatheredFailures& failures) {
    if (m_state.areas.isEmpty() || !m_host.docManager().isRecordAreaEnabled()) {
        return;
    }
    for (DOC_Interface* doc : connected(failures)) {
        attemptOn(*doc, failures, [&] {
            const auto area = m_state.areas.constFind(int(doc->control().getRecordRate(0)));
            if (area != m_state.areas.constEnd()) {
                doc->frames().setRecordAreaStart(area->first);
                doc->frames().setRecordAreaEnd(area->second);
            }
        });
    }
}

void RecordButton::arm() {
    m_host.setPrefBool(RecAllConnectedPref, true);
    m_state.recordRunning = true;
    m_state.recording.invalidate();
    m_host.recorder().startRecReady();
    if (m_state.result && m_state.result->action() == QLatin1String("record")) {
        m_state.result.reset();  // nobody is in the way any more
    }
}
