#include "RecordButton.h"

#include "ConnectedDocs.h"
#include "DOC_Control.h"
#include "DOC_Frames.h"
#include "DOC_Interface.h"
#include "DOC_Lock.h"
#include "DeviceSpeed.h"
#include "MemoryEditing.h"
#include "RecordProblems.h"
#include "SignalSources.h"
#include "SyncPreferences.h"
#include "SyncSettings.h"
#include "TableState.h"
#include "UTL_Messages.h"
#include "ZebDocManager.h"
#include "ZebHost.h"
#include "ZebRecorder.h"
#include "ZebSaver.h"

#include <QMessageBox>

#include <algorithm>

void RecordButton::press(const std::function<bool()>& synchronise) {
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
    if (areCamerasLocked() && userTakesProblems() && prepareSignal(synchronise) && canArm()) {
        clearRecordChecks(m_host);
        setAreas();
        arm();
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

DocList RecordButton::connected() const {
    ZebDocManager& documents = m_host.docManager();
    return connectedDocs(documents, documents.getConnectedDocKeys(1));
}

bool RecordButton::canArm() const {
    return m_host.isLiveMode() && m_host.recorder().getRecordingState() == zeb::RecordLive;
}

bool RecordButton::areCamerasLocked() {
    if (!m_host.getPrefBool(QStringLiteral("wren/display/lock"))) {
        return true;
    }
    const DocList docs = connected();
    if (std::all_of(docs.begin(), docs.end(), [](DOC_Interface* doc) { return doc->lock().isParamLocked(); })) {
        return true;
    }
    m_host.alert(m_host.translate(QStringLiteral("Lock all connected cameras.")), m_parent);
    return false;
}

QStringList RecordButton::problems() const {
    const SignalSources signal(m_host, m_state.sync);
    const bool hasSignal = signal.givesFrequency();
    QList<CameraAlerts> cameras;
    for (DOC_Interface* doc : connected()) {
        const DOC_Interface* device = doc->getParentDoc();
        cameras.append({doc->control().getCameraName(1), device != nullptr ? device->getAlerts() : QStringList(),
                        doc->getAlerts(), hasSignal && !signal.agreesWith(*doc)});
    }
    return problemLines(cameras, m_host.translate(SignalDiffersText));
}

bool RecordButton::userTakesProblems() {
    QStringList lines = problems();
    if (lines.isEmpty()) {
        return true;
    }
    lines.prepend(m_host.translate(QStringLiteral("Problem with camera.")));
    const ButtonTexts buttons{{QMessageBox::Ok, m_host.translate(QStringLiteral("Yes"))},
                              {QMessageBox::Cancel, m_host.translate(QStringLiteral("No"))}};
    return UTL_Messages::warnOkCancel(lines.join(QLatin1Char('\n')), m_host, m_parent, buttons) && canArm();
}

bool RecordButton::prepareSignal(const std::function<bool()>& synchronise) {
    if (!syncprefs::isInUse(m_host)) {
        return true;
    }
    if (m_host.getPrefBool(QStringLiteral("wren/settings/recordingSync"))) {
        m_host.docManager().selectAllDocs(nullptr);
        const SyncView view = SyncSettings(m_host, m_state.sync).look();
        if (view.inUse && view.executable && !synchronise()) {
            return false;
        }
    }
    if (m_host.getPrefBool(QStringLiteral("wren/settings/deviceSpeedPlaying")) &&
        !setDeviceSpeedPlaying(m_host, m_state.sync, connected())) {
        m_host.warn(m_host.translate(QStringLiteral(
                        "There are some cameras that are not synchronized shooting because the shooting speed of the "
                        "device is faster than the sync frequency.")),
                    m_parent);
    }
    return true;
}

void RecordButton::setAreas() {
    if (m_state.areas.isEmpty() || !m_host.docManager().isRecordAreaEnabled()) {
        return;
    }
    for (DOC_Interface* doc : connected()) {
        const auto area = m_state.areas.constFind(int(doc->control().getRecordRate(0)));
        if (area != m_state.areas.constEnd()) {
            doc->frames().setRecordAreaStart(area->first);
            doc->frames().setRecordAreaEnd(area->second);
        }
    }
}

void RecordButton::arm() {
    m_host.setPrefBool(RecAllConnectedPref, true);
    m_state.recordRunning = true;
    m_host.recorder().startRecReady();
}
