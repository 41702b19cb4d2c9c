#pragma once

#include <QMap>
#include <QString>
#include <QStringList>

/// States of the host that can be switched by name. One that the cameras bring about too is on while they do,
/// whatever is switched. GUI thread.
class StatusFlags {
public:
    StatusFlags();

    /// Throws `std::invalid_argument`, which lists the names, for an unknown one.
    void set(const QString& name, bool on);
    bool isOn(const QString& name) const;
    QStringList names() const { return m_flags.keys(); }

private:
    QMap<QString, bool> m_flags;
};
