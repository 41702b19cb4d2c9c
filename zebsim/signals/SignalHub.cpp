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
    m_found = suffer(OPERATION("search")).isEmpty() && isThere();
}

QString SignalHub::suffer(HubOperation operation) const {
    return m_context.faults.suffer(m_key, operation.name(), m_context.clock);
}

void SignalHub::ask(HubOperation operation) const {
    const QString reason = suffer(operation);
    if (!reason.isEmpty()) {
        throw CameraError(name(), reason);
    }
}

void SignalHub::askConnected(HubOperation operation) const {
    ask(operation);
    if (!m_found || !isThere()) {
        throw CameraError(name(), QStringLiteral("the hub is not connected"));
    }
}

bool SignalHub::isConnected() const {
    ask(OPERATION("isConnected"));
    return m_found && isThere();
}

int SignalHub::getRole() const {
    askConnected(OPERATION("getRole"));
    return m_state.role;
}

int SignalHub::getFrequency() const {
    askConnected(OPERATION("getFrequency"));
    return m_state.frequency;
}

void SignalHub::setFrequency(int hertz) {
    const HubOperation operation = OPERATION("ZebSignalDevice::setFrequency");
    m_context.calls.note(operation.call(), {m_address, hertz});
    askConnected(operation);
    m_context.clock.wait(m_state.latency);
    m_state.frequency = hertz;
}

QList<int> SignalHub::getFrequencies() const {
    askConnected(OPERATION("getFrequencies"));
    return m_state.frequencies;
}
