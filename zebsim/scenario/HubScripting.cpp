#include "HubScripting.h"

#include "PlainState.h"
#include "ScenarioError.h"
#include "SimHost.h"

SignalHub& HubScripting::find(const QString& address) const {
    SignalHub* hub = m_host.signalDevices().hub(address);
    if (hub == nullptr) {
        throw ScenarioError(QStringLiteral("there is no Sync Hub %1").arg(address));
    }
    return *hub;
}

QVariantMap HubScripting::hub(const QString& address) const {
    const SignalHub& hub = find(address);
    QVariantMap members = hub.state().toPlain();
    members.insert(QStringLiteral("connected"), hub.wasFound() && hub.isThere());
    return members;
}

void HubScripting::setHub(const QString& address, const QVariantMap& members) {
    try {
        find(address).change(members);
    } catch (const StateError& e) {
        throw ScenarioError(QStringLiteral("Sync Hub %1, %2: %3").arg(address, e.member, e.reason));
    }
}
