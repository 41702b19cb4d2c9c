#pragma once

#include "FaultPlan.h"

#include <QJSValue>
#include <QSet>
#include <QVariantMap>

class SimHost;

/// The faults that a scenario plants.
class FaultScripting {
public:
    explicit FaultScripting(SimHost& host) : m_host(host) {}

    /// `target` is a camera's key, the address of a Sync Hub or "host". `members` are `throws`, `delay` and `gone`;
    /// none of them takes the fault away. Throws `ScenarioError` for what there is not.
    void plant(const QJSValue& target, const QString& operation, const QVariantMap& members);

private:
    struct Target {
        DOCKEY key;
        QString name;
        const QSet<QString>& operations;
    };
    Target find(const QJSValue& target) const;

    SimHost& m_host;
};
