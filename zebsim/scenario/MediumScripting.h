#pragma once

#include <QString>
#include <QVariantMap>

class SimHost;

/// The storage media as a scenario sees them. GUI thread.
class MediumScripting {
public:
    /// Relative folders begin in the scenario's `folder`.
    MediumScripting(SimHost& host, QString folder) : m_host(host), m_folder(std::move(folder)) {}

    /// Puts one in as a rig would, `filled` to that part of its capacity, or pulls it out, `in: false`. Of a medium
    /// that is in and gets nothing but `filled` the rest stays. Answers what it is then, nothing when it is out. Throws
    /// `ScenarioError`.
    QVariant medium(const QString& kind, const QVariantMap& members);

private:
    SimHost& m_host;
    QString m_folder;
};
