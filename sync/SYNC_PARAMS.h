#pragma once

/// What goes to the host with a synchronisation.
struct SYNC_PARAMS {
    /// A `zeb::SyncPort`.
    int lport = 0;
    /// On an external signal; otherwise in a chain that a master camera leads.
    bool external = false;
    /// The signal comes from a signal generator, connected or not.
    bool generator = false;
    /// 0 for "ON CAM POS" on the ports of the cameras, 1 for "ON OTHERS POS".
    int input = 0;
    /// Hertz; -1 when none is chosen.
    int frequency = -1;
    /// 0 when the trigger input takes a rising edge, 1 for a falling one.
    int polarity = 1;
};
