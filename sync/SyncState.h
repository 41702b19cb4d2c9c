#pragma once

#include "DOC_SignalGenerator.h"
#include "ZebTypes.h"

#include <QStringList>

#include <memory>

class CycleFailures;

/// What is remembered of the common signal between two calls.
struct SyncState {
    /// Hertz of the signal, which a camera's record rate is compared with; 0 or below when none is chosen.
    int frequency = 0;
    /// Frequencies that the default settings offer, decimal texts; empty: the source's own.
    QStringList offered;
    /// Null also when there is no driver for it or no address.
    std::unique_ptr<DOC_SignalGenerator> generator;
    /// It is being connected.
    bool connecting = false;
    /// The master camera of the last synchronisation.
    DOCKEY masterCamera = zeb::NoDocKey;
    /// Takes what a hub does not answer to a look; null: nobody is told. Not owned.
    CycleFailures* failures = nullptr;
};
