#include "SettingsFiles.h"

#include "APP_Exception.h"
#include "CameraManagement.h"
#include "GUI_CameraFileDialog.h"
#include "GUI_CameraSettingsDialog.h"
#include "GatheredFailures.h"
#include "ModalRun.h"
#include "RecordingStatus.h"
#include "TableState.h"
#include "TextKey.h"
#include "ZebAppStatus.h"
#include "ZebCameraOps.h"
#include "ZebDocManager.h"
#include "ZebHost.h"

#include <QScopedValueRollback>

void SettingsFiles::load() {
    QScopedValueRollback<bool> loading(m_state.loadingRigx, true);
    if (!m_host.isLiveMode()) {
        return;
    }
    if (m_host.cameraOps().hasLowLightCamera()) {
        throw APP_Exception(TextKey("The settings cannot be loaded because a camera with low light ON is included."));
    }
    const DocKeyList before = m_host.docManager().getConnectedDocKeys(1);
    m_host.clearPrefsRestored(0);
    auto* dialog = new GUI_CameraFileDialog(&m_host, m_host.getMainWindow());
    const bool accepted = ModalRun(dialog).exec() == QDialog::Accepted;
    if (!accepted) {
        m_state.loadingRigx = false;
    }
    const bool isLeft = !accepted && RecordingStatus(m_host).state() == zeb::RecordReady;
    // The host may have taken the plug-in away meanwhile.
    if (isLeft || m_host.appStatus().getPlugin(QStringLiteral("wren")) == nullptr) {
        return;
    }
    GatheredFailures failures;
    CameraManagement(m_host, m_state).joinConnected(before, failures);
    if (m_host.isPrefsRestored()) {
        m_host.setPrefsRestored(1);
    }
    failures.rethrow();
}

void SettingsFiles::save() {
    if (!m_host.isLiveMode()) {
        return;
    }
    if (m_host.cameraOps().hasLowLightCamera()) {
        throw APP_Exception(TextKey("The setting can not be saved because low light ON camera is included."));
    }
    ModalRun(new GUI_CameraSettingsDialog(&m_host, m_host.getMainWindow())).exec();
}
