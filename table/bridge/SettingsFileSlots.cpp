#include "BridgeCall.h"
#include "GatheredFailures.h"
#include "JS_Mediator_WrenTableDialog.h"
#include "RecordingStatus.h"
#include "SettingsFiles.h"

void JS_Mediator_WrenTableDialog::loadRigx() {
    call(*this, Change, __func__, {}, [this] {
        GatheredFailures failures;
        failures.attempt([this] { SettingsFiles(host(), m_state).load(); });
        // The page asks for it at a change only, and was refused meanwhile.
        if (RecordingStatus(host()).state() == zeb::RecordReady) {
            showReady();
        }
        failures.rethrow();
    });
}

void JS_Mediator_WrenTableDialog::saveRigx() {
    call(*this, Change, __func__, {}, [this] { SettingsFiles(host(), m_state).save(); });
}
