#include "FaultObject.h"

#include "ScenarioError.h"

Fault faultOf(const QVariantMap& members) {
    Fault fault;
    for (auto member = members.begin(); member != members.end(); ++member) {
        if (member.key() == QLatin1String("throws"))
            fault.throws = member->toString();
        else if (member.key() == QLatin1String("delay"))
            fault.delay = member->toInt();
        else if (member.key() == QLatin1String("gone"))
            fault.gone = member->toBool();
        else
            throw ScenarioError(QStringLiteral("a fault has throws, delay or gone, not %1").arg(member.key()));
    }
    return fault;
}
