#pragma once

#include <QString>
#include <QVariantMap>

class SignalHub;
class SimHost;

/// The Sync Hubs as a scenario sees them. Every operation throws `ScenarioError` in words for its author.
class HubScripting {
public:
    explicit HubScripting(SimHost& host) : m_host(host) {}

    QVariantMap hub(const QString& address) const;
    void setHub(const QString& address, const QVariantMap& members);

private:
    SignalHub& find(const QString& address) const;

    SimHost& m_host;
};
