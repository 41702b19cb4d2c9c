#pragma once

#include "DOC_Interface.h"
#include "NamedFailure.h"
#include "ZebDocManager.h"
#include "ZebHost.h"

/// A parameter that the heads of a device may share, as the host knows it and as the user reads it.
struct SharedParameter {
    bool shutter;
    bool resolution;
    const char* label;
    /// One head of the batch that reaches a locked one is enough for the question; else the last head decides.
    bool anyHeadAsks;
};

constexpr SharedParameter RecordRate{false, false, QT_TR_NOOP("Shooting speed"), false};
constexpr SharedParameter ShutterSpeed{true, false, QT_TR_NOOP("Shutter speed"), true};
constexpr SharedParameter Resolution{false, true, QT_TR_NOOP("Resolution"), false};
constexpr SharedParameter TriggerMode{false, false, QT_TR_NOOP("Trigger mode"), false};

/// Runs `step` on each document of `keys` that is there and connected, in the order of the keys. Those that fail go
/// into `failures` and keep no other from its step.
template <typename Step>
void forEachConnected(ZebHost& host, const DocKeyList& keys, GatheredFailures& failures, Step&& step) {
    for (const DOCKEY key : keys) {
        if (DOC_Interface* doc = host.docManager().getDocAny(key)) {
            attemptOn(*doc, failures, [&] {
                if (doc->isConnected()) {
                    step(*doc);
                }
            });
        }
    }
}

/// The documents of `keys` that are there, connected and not locked, in the order of the keys. Those that do not tell
/// go into `failures`.
DocList changeableDocs(ZebHost& host, const DocKeyList& keys, GatheredFailures& failures);

/// The same for a change of `parameter`. Where it would reach a locked head the user is asked; the list is empty
/// when the user declines, and made anew otherwise, for cameras and mode may be others by then.
DocList changeableDocs(ZebHost& host, const DocKeyList& keys, const SharedParameter& parameter,
                       GatheredFailures& failures);
