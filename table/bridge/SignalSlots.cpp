#include "BridgeCall.h"
#include "JS_Mediator_WrenTableDialog.h"
#include "SyncSettings.h"
#include "SyncVerdict.h"
#include "ZebDocManager.h"
#include "ZebHost.h"

QString JS_Mediator_WrenTableDialog::getSyncSettings() {
    return call(*this, Query, __func__, {}, [this] { return SyncSettings(host(), m_state.sync).look().toJson(); });
}

QString JS_Mediator_WrenTableDialog::getSyncVerdict(DOCKEY dockey) {
    return call(*this, Query, __func__, {{"dockey", dockey}}, [&] {
        DOC_Interface* doc = host().docManager().getDocAny(dockey);
        return doc == nullptr ? QString() : SyncVerdict(host(), m_state.sync, *doc).toJson();
    });
}

bool JS_Mediator_WrenTableDialog::setSyncSettings() {
    return call(*this, Action, __func__, {}, [this] { return SyncSettings(host(), m_state.sync).synchronise(*this); });
}

void JS_Mediator_WrenTableDialog::connectSignalGenerator() {
    call(*this, Action, __func__, {}, [this] { SignalSources(host(), m_state.sync).connectGenerator(); });
}

void JS_Mediator_WrenTableDialog::connectSignalDistributors() {
    call(*this, Action, __func__, {}, [this] { SignalSources(host(), m_state.sync).connectHubs(); });
}

void JS_Mediator_WrenTableDialog::setSignalFrequency(int freq) {
    call(*this, Action, __func__, {{"freq", freq}}, [&] { SignalSources(host(), m_state.sync).setFrequency(freq); });
}

bool JS_Mediator_WrenTableDialog::checkDifferenceRecordRateAndExternalFrequency(DOC_Interface* doc) {
    bool agrees = true;
    call(*this, Query, __func__, {}, [&] {
        const SignalSources signal(host(), m_state.sync);
        agrees = doc == nullptr || !signal.givesFrequency() || signal.agreesWith(*doc);
    });
    return agrees;
}
