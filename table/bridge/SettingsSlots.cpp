#include "BridgeCall.h"
#include "DefaultsLoad.h"
#include "GUI_WrenDefaultSettingsDialog.h"
#include "GatheredFailures.h"
#include "JS_Mediator_WrenTableDialog.h"
#include "ZebHost.h"

void JS_Mediator_WrenTableDialog::openDefaultSettingsDialog() {
    call(*this, Change, __func__, {}, [this] {
        if (GUI_WrenDefaultSettingsDialog::run(host(), tableWindow())) {
            GatheredFailures failures;
            DefaultsLoad(host(), m_state, failures).loadAll();
            failures.rethrow();
        }
    });
}
