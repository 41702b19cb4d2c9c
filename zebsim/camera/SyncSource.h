#pragma once

#include "ZebTypes.h"

/// What a camera is synchronised with.
struct SyncSource {
    /// Names, as `CameraState::syncSource` holds them. A camera that was never synchronised has none.
    static constexpr auto External = "external";
    static constexpr auto Hub = "hub";
    static constexpr auto Chain = "chain";

    const char* name = External;
    /// Of an external signal, in hertz; below 1 when nobody knows it.
    int frequency = 0;
    /// Of a chain; `zeb::NoDocKey` without one.
    DOCKEY master = zeb::NoDocKey;
};
