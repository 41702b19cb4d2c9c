#include "ActionWatch.h"
#include "CameraEdit.h"
#include "FailureText.h"
#include "ParameterEditing.h"
#include "TableFile.h"
#include "TableStatus.h"
#include "ZebDocManager.h"
#include "ZebHost.h"

#include <QClipboard>
#include <QGuiApplication>

QString JS_Mediator_WrenTableDialog::getTableStatus() {
    return call(*this, Query, __func__, {}, [this] { return TableStatus(host(), m_state).toJson(cycleFailures()); });
}

void JS_Mediator_WrenTableDialog::copyTable(const QString& text) {
    call(*this, Plain, __func__, {}, [&] { QGuiApplication::clipboard()->setText(text); });
}

void JS_Mediator_WrenTableDialog::saveTable(const QString& csv) {
    call(*this, Action, __func__, {}, [&] { saveAsTable(tableWindow(), csv); });
}

void JS_Mediator_WrenTableDialog::lockAll(bool lock) {
    call(*this, Change, __func__, {{"lock", lock}}, [&] {
        const DocKeyList keys = host().docManager().getConnectedDocKeys(1);
        watch(cameraaction::Lock, keys, cameraaction::flag(lock), [&] {
            ParameterEditing editing(host(), m_state.allowed);
            editing.setParamLock(keys, lock);
            return editing.isSent();
        });
    });
}

void JS_Mediator_WrenTableDialog::watch(const CameraAction& action, const DocKeyList& keys, const QString& asked,
                                        const std::function<bool()>& change) {
    if (!action.applies(host(), asked)) {
        change();
        return;
    }
    const ActionWatch watch(host(), action, keys, asked);
    try {
        const bool sent = change();
        note(watch.finish({}, sent));
    } catch (...) {
        note(watch.finish(currentFailureText(), true));
        throw;
    }
}

void JS_Mediator_WrenTableDialog::note(const std::optional<ActionResult>& result) {
    if (result) {
        result->log();
        m_state.result = result;
    }
}
