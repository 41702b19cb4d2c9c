#pragma once

#include "SignalChoice.h"
#include "TextKey.h"

#include <QList>
#include <QStringList>

#include <optional>

class DOC_Interface;
class GatheredFailures;
class ZebHost;
class ZebSignalDevice;
struct SyncState;

/// The alert of a camera whose record rate is not the frequency of the signal; a key for translation.
inline const QString SignalDiffersText = TextKey("External sync signal and cameras recordrate are different");

/// Where the common signal comes from: a signal generator, or the Sync Hub that makes it. GUI thread.
///
/// A look at the generator costs a question to the instrument. A hub that does not answer a look counts as not
/// connected, and its failure goes into the state's `failures`. All operations but the two that connect may throw what
/// the host and its devices throw.
class SignalSources {
public:
    /// What fails while it connects goes into `failures`, and no box shows it; without them the host shows it at once.
    SignalSources(ZebHost& host, SyncState& state, GatheredFailures* failures = nullptr)
        : m_host(host), m_state(state), m_failures(failures) {}

    /// Connect the source that the preferences name and set it to the chosen frequency, if it offers that. They throw
    /// nothing; the first runs an event loop while it waits for the instrument, and does nothing when it is
    /// called in there. Without an address the generator goes.
    void connectGenerator();
    void connectHubs();

    /// Chooses a frequency in hertz, and sends it to the source as it is; nothing below 1.
    void setFrequency(int hertz);

    bool isGeneratorConnected() const;
    /// Whether one of the hubs that the preferences name is, in use or not.
    bool isHubConnected() const;
    /// The generator must be connected.
    SignalOffer readGenerator() const;
    /// Of the first hub that makes the signal and tells it; empty without one. Nothing when a hub did not answer, which
    /// may be the one.
    std::optional<SignalOffer> readHub() const;

    /// Whether the cameras' rates have a frequency to agree with. One look answers for all cameras.
    bool givesFrequency() const;
    /// Whether the camera's record rate is the frequency of the signal.
    bool agreesWith(DOC_Interface& doc) const;

private:
    /// Shows a failure of `work`, and cleans up behind the box.
    template <typename Work, typename CleanUp>
    void attempt(Work&& work, CleanUp&& cleanUp);
    void openGenerator();
    void openHubs();
    void dropGenerator();
    /// Asks the hub with that address, if it is there and connected. False when it did not answer. `question` tells one
    /// question to a hub from another.
    template <typename Ask>
    bool ask(const QString& address, const char* question, Ask&& ask) const;
    /// Works on the hub with that address, if it is there and connected. Throws what it throws, with the address.
    template <typename Work>
    void onHub(const QString& address, Work&& work) const;
    /// The same on those that make the signal, in the order of their addresses; one that fails keeps no other from it.
    template <typename Work>
    void onMasterHubs(Work&& work);
    /// Of the hubs that the preferences name those that are not there or not connected.
    QStringList missingHubs() const;

    ZebHost& m_host;
    SyncState& m_state;
    GatheredFailures* const m_failures;
};
