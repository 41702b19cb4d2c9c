#pragma once

#include "HubState.h"
#include "Operation.h"
#include "ZebSignalDevices.h"
#include "ZebTypes.h"

class Clock;
class FaultPlan;
class HostCalls;

/// What a hub reaches of the host.
struct HubContext {
    const HostCalls& calls;
    Clock& clock;
    FaultPlan& faults;
};

/// A simulated Sync Hub, and the host's connection to it. GUI thread.
class SignalHub : public ZebSignalDevice {
public:
    /// Faults are planted on the hub under `key`.
    SignalHub(DOCKEY key, const QString& address, const HubState& state, const HubContext& context);

    DOCKEY key() const { return m_key; }
    const QString& address() const { return m_address; }
    const HubState& state() const { return m_state; }
    /// Changes the state behind the hub's back. Throws `StateError`.
    void change(const QVariantMap& members) { m_state.apply(members); }
    /// Whether it stands on the network.
    bool isThere() const;
    /// Frequency that it puts on the cables, in hertz; 0 for none.
    int signal() const;

    /// Connects it if it answers.
    void search();
    void disconnect() { m_found = false; }
    /// Whether a search has found it since it was disconnected, even if it has been unplugged meanwhile.
    bool wasFound() const { return m_found; }

    /// The questions and the command throw when the hub is not connected.
    bool isConnected() const override;
    int getRole() const override;
    int getFrequency() const override;
    /// Takes any, whatever the list says.
    void setFrequency(int hertz) override;
    QList<int> getFrequencies() const override;

private:
    /// Why it fails; empty when it does not.
    QString suffer(HubOperation operation) const;
    void ask(HubOperation operation) const;
    void askConnected(HubOperation operation) const;
    QString name() const;

    const DOCKEY m_key;
    const QString m_address;
    HubState m_state;
    const HubContext& m_context;
    bool m_found = false;
};
