#include "SignalHub.h"

#include "CameraError.h"
#include "Clock.h"
#include "FaultPlan.h"
#include "HostCalls.h"

SignalHub::SignalHub(DOCKEY key, const QString& address, const HubState& state, const HubContext& context)
    : m_key(key), m_address(address), m_state(state), m_context(context) {}

QString SignalHub::name() const {
    return QStringLiteral("Sync Hub ") % m_address;
}

bool SignalHub::isThere() const {
    return m_state.found && !m_context.faults.isGone(m_key);
}

int SignalHub::signal() const {
    return isThere() && m_state.role == zeb::HubRoleMaster ? m_state.frequency : 0;
}

void SignalHub::search() {
    const QString reason = m_context.faults.suffer(m_key, "search", m_context.clock);
    m_found = reason.isEmpty() && isThere();
}

void SignalHub::ask(const char* operation) const {
    const QString reason = m_context.faults.suffer(m_key, operation, m_context.clock);
    if (!reason.isEmpty()) {
        throw CameraError(name(), reason);
    }
}

void SignalHub::askConnected(const char* operation) const {
    ask(operation);
    if (!m_found || !isThere()) {
        throw CameraError(name(), QStringLiteral("the hub is not connected"));
    }
}

bool SignalHub::isConnected() const {
    ask("isConnected");
    return m_found && isThere();
}

int SignalHub::getRole() const {
    askConnected("getRole");
    return m_state.role;
}

int SignalHub::getFrequency() const {
    askConnected("getFrequency");
    return m_state.frequency;
}

void SignalHub::setFrequency(int hertz) {
    m_context.calls.note("ZebSignalDevice::setFrequency", {m_address, hertz});
    askConnected("setFrequency");
    m_context.clock.wait(m_state.latency);
    m_state.frequency = hertz;
}

QList<int> SignalHub::getFrequencies() const {
    askConnected("getFrequencies");
    return m_state.frequencies;
}
