#pragma once

#include "SYNC_PARAMS.h"
#include "SignalSources.h"
#include "ZebTypes.h"

#include <QString>

struct SyncState;

/// What the table shows of the common signal.
struct SyncView {
    /// Synchronisation is in use here, and there are cameras enough for it.
    bool inUse = false;
    bool executable = false;
    /// Without a source that is connected there is nothing to choose.
    SignalChoice signal;
    bool generatorAvailable = false;
    bool generatorConnected = false;
    bool hubAvailable = false;
    bool hubConnected = false;

    QString toJson() const;
};

/// Puts the cameras of the table on one signal. GUI thread.
class SyncSettings {
public:
    SyncSettings(ZebHost& host, SyncState& state) : m_host(host), m_state(state), m_sources(host, state) {}

    /// Asks host and sources; may throw what they throw. A frequency that the source makes becomes the chosen one.
    SyncView look();

    enum class Outcome { NotStarted, Failed, Done };
    /// Looks whether the cameras are fit for it, connects the source of the signal, and hands the cameras over; runs an
    /// event loop meanwhile. `Failed`: the host has told the user why. Throws before anything is changed on a camera.
    Outcome synchronise();
    /// Reminds the user of the wiring, until the user has had enough of it. May throw what the host throws.
    void remindOfWiring();

private:
    /// Whether the host takes these cameras; never none.
    bool canSync(const DocList& docs) const;
    SYNC_PARAMS readParams() const;
    DocList sorted(const DocList& docs, DOC_Interface& master, bool external);

    ZebHost& m_host;
    SyncState& m_state;
    SignalSources m_sources;
};
