#pragma once

#include "ZebTypes.h"

struct HostContext;

/// Devices that start anew: the host connects those again that it was told to expect, and names those that stay away.
/// GUI thread.
class RestartWatch {
public:
    explicit RestartWatch(const HostContext& host) : m_host(host) {}

    /// Brings them up to the clock; called often. An event loop may run.
    void proceed();
    /// The user wants all cameras disconnected: those that come back stay so.
    void expectNone();
    /// As `Camera::reboot`; without effect when there is no such camera.
    void reboot(DOCKEY key);

private:
    void connectAgain(const DocKeyList& keys);

    const HostContext& m_host;
};
