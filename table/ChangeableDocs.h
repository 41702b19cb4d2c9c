#pragma once

#include "ZebTypes.h"

class ZebHost;

/// A parameter that the heads of a device may share, as the host knows it and as the user reads it.
struct SharedParameter {
    bool shutter;
    bool resolution;
    const char* label;
    /// One head of the batch that reaches a locked one is enough for the question; else the last head decides.
    bool anyHeadAsks;
};

constexpr SharedParameter RecordRate{false, false, "Shooting speed", false};
constexpr SharedParameter ShutterSpeed{true, false, "Shutter speed", true};
constexpr SharedParameter Resolution{false, true, "Resolution", false};
constexpr SharedParameter TriggerMode{false, false, "Trigger mode", false};

/// The documents of `keys` that are there, connected and not locked, in the order of the keys.
DocList changeableDocs(ZebHost& host, const DocKeyList& keys);

/// The same for a change of `parameter`. Where it would reach a locked head the user is asked; the list is empty
/// when the user declines, and made anew otherwise, for cameras and mode may be others by then.
DocList changeableDocs(ZebHost& host, const DocKeyList& keys, const SharedParameter& parameter);
