#include "HostKeys.h"

#include "Camera.h"
#include "PluginSignal.h"
#include "RecordingGuard.h"
#include "SimHost.h"
#include "UiText.h"

#include <QAction>
#include <QApplication>
#include <QDialog>
#include <QToolBar>

#include <algorithm>

namespace {

/// What the record key does next.
QString recordText(int state) {
    switch (state) {
        case zeb::RecordCtsReady:
            return uiText("Waiting For CTS Signal");
        case zeb::RecordReady:
            return uiText("Trigger");
        case zeb::RecordRecording:
            return uiText("Stop");
        default:
            return uiText("Record");
    }
}

/// A list of the table's is not the table, but no reason to record without its checks.
bool isPluginInFront(SimHost& host) {
    const QList<PLG_Interface*> plugins = host.appStatus().plugins();
    for (const QWidget* window = QApplication::activeWindow(); window != nullptr; window = window->parentWidget()) {
        if (std::any_of(plugins.begin(), plugins.end(), [window](PLG_Interface* plugin) {
                return plugin->getDialog(false) == static_cast<const QObject*>(window);
            })) {
            return true;
        }
    }
    return false;
}

/// It is armed or has failed; one that records by itself is left alone.
bool isHeldUp(const Camera* camera) {
    const int state = camera->recordState();
    return state != zeb::RecordLive && state != zeb::RecordRecording;
}

bool hasOpenDialog(PLG_Interface* plugin) {
    return plugin->isDialogVisible();
}

}  // namespace

HostKeys::HostKeys(SimHost& host, QToolBar& bar)
    : QObject(&bar),
      m_host(host),
      m_record(bar, recordText(zeb::RecordLive), Qt::Key_F12, [this] { return recordRefusal(); }),
      m_cancel(bar.addAction(uiText("Cancel recording"))),
      m_disconnect(bar.addAction(uiText("Disconnect all"))) {
    m_record.action().setObjectName(QStringLiteral("record"));
    m_cancel->setObjectName(QStringLiteral("cancelRecording"));
    m_disconnect->setObjectName(QStringLiteral("disconnectAll"));
    connect(&m_record, &BarKey::pressed, this, &HostKeys::record);
    connect(m_cancel, &QAction::triggered, this, [this] { m_host.recorder().cancel(); });
    connect(m_disconnect, &QAction::triggered, this, &HostKeys::disconnectAll);
    connect(&host.events(), &HostEvents::updateFinished, this, &HostKeys::refresh);
    connect(&host.events(), &HostEvents::modeChanged, this, &HostKeys::refresh);
    connect(&host.events(), &HostEvents::camerasReplaced, this, &HostKeys::refresh);
    refresh();
}

void HostKeys::record() {
    if (m_sinceRecord.isValid() && m_sinceRecord.elapsed() < QApplication::doubleClickInterval()) {
        m_record.refuse(uiText("It was pressed twice."));
        return;
    }
    SimRecorder& recorder = m_host.recorder();
    const int state = recorder.state();
    if (state != m_shownState) {
        refresh();
        m_record.refuse(uiText("It has just changed."));
    } else if (!sendToActivePlugin(m_host.appStatus(), "signalRecord") && !isPluginInFront(m_host)) {
        recorder.press();
    }
    // From its end on, for a second press may have waited that long.
    m_sinceRecord.start();
}

void HostKeys::disconnectAll() {
    if (!mayLetGoOfRecording(m_host, uiText("Cameras are armed or recording. Disconnect all the same?"))) {
        return;
    }
    m_host.expectNoRestart();
    const QList<PLG_Interface*> plugins = m_host.appStatus().plugins();
    if (std::any_of(plugins.begin(), plugins.end(), hasOpenDialog)) {
        sendToPlugins(m_host.appStatus(), "signalDisconnect");
        return;
    }
    try {
        DocKeyList keys;
        for (const Camera* camera : m_host.cameras().connectedOfRig()) {
            keys.append(camera->key());
        }
        m_host.batch().runOrThrow(m_host.cameras().holdDevices(keys), [](Camera& camera) { camera.disconnect(); });
    } catch (const std::exception& e) {
        m_host.messages().tellFailure(e);
    }
    m_host.updates().request();
}

QString HostKeys::recordRefusal() const {
    if (!m_host.isLiveMode()) {
        return uiText("Cameras record in live mode.");
    }
    if (m_host.cameras().connectedOfRig().empty()) {
        return uiText("No camera is connected.");
    }
    const int state = m_host.recorder().state();
    if (state == zeb::RecordCtsReady) {
        return uiText("The cameras wait for their CTS signal.");
    }
    if (state == zeb::RecordError) {
        return uiText("All cameras have failed; cancel the recording first.");
    }
    return {};
}

void HostKeys::refresh() {
    const int state = m_host.recorder().state();
    m_shownState = state;
    m_record.action().setText(recordText(m_host.isLiveMode() ? state : int(zeb::RecordLive)));
    m_record.refresh();
    const auto cameras = m_host.cameras().connectedOfRig();
    m_cancel->setEnabled(state != zeb::RecordLive || std::any_of(cameras.begin(), cameras.end(), isHeldUp));
    m_disconnect->setEnabled(!cameras.empty());
}
