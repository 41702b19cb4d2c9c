#pragma once

#include "BridgePause.h"
#include "JS_Mediator.h"

#include <utility>

/// The frame of a bridge call: no exception leaves it, for one that reaches the page's script ends the process.
///
/// The slot's scopes are made inside `work`, so they have written their lines and asked for the update before
/// the message box stands; the bridge counts as busy until the box is gone.
template <typename Work>
void bridgeCall(JS_Mediator& bridge, Work&& work) {
    const BridgePause pause(bridge);
    try {
        std::forward<Work>(work)();
    } catch (...) {
        bridge.reportCurrentFailure();
    }
}

/// The same for a call that answers: what `work` returns, or `fallback` after a failure.
template <typename Result, typename Work>
Result bridgeCall(JS_Mediator& bridge, Result fallback, Work&& work) {
    bridgeCall(bridge, [&] { fallback = std::forward<Work>(work)(); });
    return fallback;
}
