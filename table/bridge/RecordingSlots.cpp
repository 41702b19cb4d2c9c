#include "BridgeCall.h"
#include "DOC_Activity.h"
#include "DOC_Interface.h"
#include "DocumentGuard.h"
#include "GUI_ProgressDialog.h"
#include "JS_Mediator_WrenTableDialog.h"
#include "ReadyProgress.h"
#include "RecordButton.h"
#include "RecordingStatus.h"
#include "TextKey.h"
#include "ZebAppStatus.h"
#include "ZebDocManager.h"
#include "ZebHost.h"
#include "ZebLiveLoop.h"
#include "ZebSaver.h"

#include <QCoreApplication>
#include <QJsonDocument>
#include <QJsonObject>

QString JS_Mediator_WrenTableDialog::getRecStatus() {
    QJsonObject status;
    call(*this, Query, __func__, {}, [&] { RecordingStatus(host()).addTo(status); });
    return QString::fromUtf8(QJsonDocument(status).toJson(QJsonDocument::Compact));
}

bool JS_Mediator_WrenTableDialog::isRecReady() {
    return call(*this, Query, __func__, {}, [this] { return RecordingStatus(host()).state() == zeb::RecordReady; });
}

bool JS_Mediator_WrenTableDialog::isRecording() {
    return call(*this, Query, __func__, {}, [this] { return RecordingStatus(host()).state() == zeb::RecordRecording; });
}

void JS_Mediator_WrenTableDialog::record() {
    call(*this, Action, __func__, {}, [this] {
        try {
            RecordButton(*this, host(), m_state, tableWindow()).press();
        } catch (...) {
            m_state.recordRunning = false;
            throw;
        }
    });
}

void JS_Mediator_WrenTableDialog::cancelRecord() {
    call(*this, Change, __func__, {}, [this] { RecordButton(*this, host(), m_state, tableWindow()).cancel(); });
}

void JS_Mediator_WrenTableDialog::setTriggerTesting(bool value) {
    call(*this, Change, __func__, {{"value", value}}, [&] { host().setTriggerTesting(value); });
}

void JS_Mediator_WrenTableDialog::stopLive(bool stop) {
    call(*this, Change, __func__, {{"stop", stop}}, [&] {
        DocumentGuard guard(host(), false, false);
        host().liveLoop().setStopLive(stop, 1);
        guard.release();
    });
}

void JS_Mediator_WrenTableDialog::updateLive() {
    call(*this, Change, __func__, {}, [this] { host().liveLoop().updateLive(); });
}

void JS_Mediator_WrenTableDialog::snapShot(int mode) {
    call(*this, Action, __func__, {{"mode", mode}}, [&] { host().saver().snapShot(mode); });
}

bool JS_Mediator_WrenTableDialog::isRecordDuringExporting() {
    return call(*this, Query, __func__, {}, [this] { return host().saver().isBgSaving(); });
}

bool JS_Mediator_WrenTableDialog::isOtherPluginOpen() {
    return call(*this, Query, __func__, {}, [this] { return host().isOtherPluginOpen(); });
}

bool JS_Mediator_WrenTableDialog::getTriggerTesting() {
    return call(*this, Query, __func__, {}, [this] { return host().getTriggerTesting(); });
}

bool JS_Mediator_WrenTableDialog::isStopLive() {
    return call(*this, Query, __func__, {}, [this] {
        DOC_Interface* doc = host().docManager().getCurrentDoc();
        return doc != nullptr && doc->activity().isStopLive();
    });
}

void JS_Mediator_WrenTableDialog::enterLiveMode() {
    call(*this, Change, __func__, {}, [this] { host().appStatus().enterLiveMode(); });
}

void JS_Mediator_WrenTableDialog::enterMemoryMode() {
    call(*this, Change, __func__, {}, [this] { host().appStatus().enterMemoryMode(); });
}

void JS_Mediator_WrenTableDialog::showReadyProgress() {
    call(*this, Query, __func__, {}, [this] { showReady(); });
}

void JS_Mediator_WrenTableDialog::showReady() {
    const bool following = m_sessionOpen && host().appStatus().isWrenRunning();
    if (m_readyProgress || !following || m_state.loadingRigx) {
        return;
    }
    m_readyProgress = makeReadyProgressDialog(host().translate(TextKey("Ready...")), host());
    m_readyProgress->show();
    // A press that is under way keeps until this call has ended; in here it would be refused.
    QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
}

void JS_Mediator_WrenTableDialog::deleteReadyProgress() {
    call(*this, Query, __func__, {}, [this] { delete m_readyProgress; });
}
