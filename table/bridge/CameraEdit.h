#pragma once

#include "BridgeCall.h"
#include "DocKeys.h"
#include "JS_Mediator_WrenTableDialog.h"

/// A change of many cameras to the value that stands in the log as `name`.
template <typename Topic, typename Param, typename Value>
void JS_Mediator_WrenTableDialog::edit(const char* method, const QVariantList& keys, const char* name,
                                       const Value& value, void (Topic::*set)(const DocKeyList&, Param)) {
    call(*this, Change, method, {{"keys", keyText(keys)}, {name, value}}, [&] {
        const DocKeyList docKeys = toDocKeys(keys);
        // No keys stand for all cameras in some of these; a list without one good key does not.
        if (keys.isEmpty() || !docKeys.isEmpty()) {
            (topic<Topic>().*set)(docKeys, value);
        }
    });
}
