#include "FaultScripting.h"

#include "Operation.h"
#include "ScenarioError.h"
#include "SimHost.h"

namespace {

Fault faultOf(const QVariantMap& members) {
    Fault fault;
    for (auto member = members.begin(); member != members.end(); ++member) {
        if (member.key() == QLatin1String("throws")) {
            fault.throws = member->toString();
        } else if (member.key() == QLatin1String("delay")) {
            fault.delay = member->toInt();
        } else if (member.key() == QLatin1String("gone")) {
            fault.gone = member->toBool();
        } else if (member.key() == QLatin1String("written")) {
            fault.afterCalls = member->toInt();
        } else {
            throw ScenarioError(QStringLiteral("a fault has throws, delay, gone or written, not %1").arg(member.key()));
        }
    }
    return fault;
}

}  // namespace

void FaultScripting::plant(const QJSValue& target, const QString& operation, const QVariantMap& members) {
    const Target found = find(target);
    if (operation != QLatin1String(FaultPlan::EveryOperation) && !found.operations.contains(operation)) {
        throw ScenarioError(QStringLiteral("%1 has no operation \"%2\" that can fail").arg(found.name, operation));
    }
    const Fault fault = faultOf(members);
    if (fault.gone && (found.key == FaultPlan::Host || found.key == FaultPlan::Disk)) {
        throw ScenarioError(found.name % QStringLiteral(" can't be gone"));
    }
    m_host.faults().plant(found.key, operation, fault);
}

FaultScripting::Target FaultScripting::find(const QJSValue& target) const {
    if (!target.isString()) {
        const DOCKEY key = target.toUInt();
        // One that a fault has made gone comes back by an empty fault.
        if (!m_host.cameras().has(key)) {
            throw ScenarioError(QStringLiteral("there is no camera %1").arg(key));
        }
        return {key, QStringLiteral("a camera"), CameraOperation::names()};
    }
    if (target.toString() == QLatin1String("host")) {
        return {FaultPlan::Host, QStringLiteral("the host"), HostOperation::names()};
    }
    if (target.toString() == QLatin1String("disk")) {
        static const QSet<QString> operations = {QStringLiteral("write")};
        return {FaultPlan::Disk, QStringLiteral("the disk"), operations};
    }
    const SignalHub* hub = m_host.signalDevices().hub(target.toString());
    if (hub == nullptr) {
        throw ScenarioError(QStringLiteral("there is no Sync Hub %1").arg(target.toString()));
    }
    return {hub->key(), QStringLiteral("a Sync Hub"), HubOperation::names()};
}
