#pragma once

#include "SYNC_PARAMS.h"
#include "SignalSources.h"
#include "ZebTypes.h"

#include <QString>

class JS_Mediator;
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

    /// Puts the cameras on the signal, as a call of `bridge` of its own: looks whether they are fit for it, connects
    /// the source of the signal, hands them over and reminds the user of the wiring. Runs an event loop meanwhile.
    /// Whether they were handed over, whatever came then; the user has been told what went wrong. Does not throw.
    bool synchronise(JS_Mediator& bridge);

private:
    enum class Outcome { NotStarted, Failed, Done };
    /// `Failed`: the host has told the user why. Throws before anything is changed on a camera.
    Outcome handOver();
    /// Until the user has had enough of it.
    void remindOfWiring();
    /// Whether the host takes these cameras; never none.
    bool canSync(const DocList& docs) const;
    SYNC_PARAMS readParams() const;
    DocList sorted(const DocList& docs, DOC_Interface& master, bool external);

    ZebHost& m_host;
    SyncState& m_state;
    SignalSources m_sources;
};
