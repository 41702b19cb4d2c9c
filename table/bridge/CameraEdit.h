#pragma once

#include "BridgeCall.h"
#include "CameraAction.h"
#include "DocKeys.h"
#include "JS_Mediator_WrenTableDialog.h"
#include "ParameterEditing.h"
#include "TriggerEditing.h"
#include "ZebHost.h"

#include <type_traits>

/// A change of many cameras to the value that stands in the log as `name`.
template <typename Topic, typename Param, typename Value>
void JS_Mediator_WrenTableDialog::edit(const char* method, const QVariantList& keys, const char* name,
                                       const Value& value, void (Topic::*set)(const DocKeyList&, Param),
                                       const CameraAction& action) {
    call(*this, Change, method, {{"keys", keyText(keys)}, {name, value}}, [&] {
        const DocKeyList docKeys = toDocKeys(keys);
        // No keys stand for all cameras in some of these; a list without one good key does not.
        if (!keys.isEmpty() && docKeys.isEmpty()) {
            return;
        }
        watch(action, docKeys, QVariant(value).toString(), [&] {
            Topic changed = topic<Topic>();
            (changed.*set)(docKeys, value);
            if constexpr (std::is_same_v<Topic, ParameterEditing> || std::is_same_v<Topic, TriggerEditing>) {
                return changed.isSent();
            } else {
                return true;
            }
        });
    });
}
