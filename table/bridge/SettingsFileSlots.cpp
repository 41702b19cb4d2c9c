#include "BridgeCall.h"
#include "JS_Mediator_WrenTableDialog.h"
#include "RecordingStatus.h"
#include "SettingsFiles.h"

void JS_Mediator_WrenTableDialog::loadRigx() {
    call(*this, Change, __func__, {}, [this] {
        SettingsFiles(host(), m_state).load();
        if (RecordingStatus(host()).state() == zeb::RecordReady) {
            showReady();
        }
    });
}

void JS_Mediator_WrenTableDialog::saveRigx() {
    call(*this, Change, __func__, {}, [this] { SettingsFiles(host(), m_state).save(); });
}
