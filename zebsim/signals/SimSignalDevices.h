#pragma once

#include "SignalHub.h"
#include "ZebSignalDevices.h"

#include <memory>
#include <vector>

struct RigHub;

/// The Sync Hubs of a rig, and those of them that the host has found. GUI thread.
class SimSignalDevices : public ZebSignalDevices {
public:
    SimSignalDevices(const HostCalls& calls, Clock& clock, FaultPlan& faults) : m_context{calls, clock, faults} {}

    /// Puts these hubs in the place of all others; none is connected.
    void replace(const QList<RigHub>& hubs);
    /// A hub of the rig, found or not; null when there is none.
    SignalHub* hub(const QString& address) const;
    /// Frequency of the signal that the hubs bring to the cameras, in hertz; 0 for none.
    int signal() const;

    void close() override;
    /// Takes the time of the slowest hub, as `search` does.
    void open(int mode) override;
    /// None before `open`.
    int search(int kind, int mode) override;
    ZebSignalDevice* findByAddress(const QString& address) override;

private:
    void waitForAnswers();

    const HubContext m_context;
    std::vector<std::unique_ptr<SignalHub>> m_hubs;
    bool m_open = false;
};
