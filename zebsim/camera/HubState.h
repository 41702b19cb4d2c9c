#pragma once

#include "ZebTypes.h"

#include <QMetaType>
#include <QVariantMap>

/// Everything about a Sync Hub that can change. The property names are the members of a hub in a rig file and of the
/// scenario's `zeb.hub`.
struct HubState {
    Q_GADGET
    Q_PROPERTY(int role MEMBER role)
    Q_PROPERTY(int frequency MEMBER frequency)
    Q_PROPERTY(QList<int> frequencies MEMBER frequencies)
    Q_PROPERTY(bool found MEMBER found)
    Q_PROPERTY(int latency MEMBER latency)
public:
    /// `zeb::HubRoleMaster`, or 1 for a hub that passes the signal on.
    int role = zeb::HubRoleMaster;
    /// In hertz, 0 for no signal; what the hub offers.
    int frequency = 0;
    QList<int> frequencies;
    /// False while it is unplugged.
    bool found = true;
    /// Time that it takes to answer, in milliseconds.
    int latency = 0;

    QVariantMap toPlain() const;
    /// Sets the members that `members` names, or none of them and throws `StateError`.
    void apply(const QVariantMap& members);
};
