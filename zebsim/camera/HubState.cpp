#include "HubState.h"

#include "PlainState.h"

#include <algorithm>

namespace {

constexpr int longestLatency = 60000;

void require(bool holds, const char* member, const QString& reason) {
    if (!holds) {
        throw StateError{QString::fromLatin1(member), reason};
    }
}

}  // namespace

QVariantMap HubState::toPlain() const {
    return readMembers(staticMetaObject, this);
}

void HubState::apply(const QVariantMap& members) {
    HubState changed = *this;
    writeMembers(staticMetaObject, &changed, members);
    const QList<int>& offered = changed.frequencies;
    require(changed.role == zeb::HubRoleMaster || changed.role == 1, "role",
            QStringLiteral("0 for the hub that makes the signal or 1 for one that passes it on is expected"));
    require(std::all_of(offered.begin(), offered.end(), [](int hertz) { return hertz > 0; }), "frequencies",
            QStringLiteral("frequencies above 0 are expected"));
    require(
        !members.contains(QStringLiteral("frequency")) || changed.frequency == 0 || offered.contains(changed.frequency),
        "frequency", QStringLiteral("the hub does not offer this"));
    require(changed.latency >= 0 && changed.latency <= longestLatency, "latency",
            QStringLiteral("a whole number from 0 to %1 is expected").arg(longestLatency));
    *this = changed;
}
