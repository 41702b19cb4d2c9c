#pragma once

#include <QHash>
#include <QList>
#include <QString>
#include <QStringList>

/// A camera as its files are called after it.
struct NamedCamera {
    QString name;
    /// As `Camera::address`; no other camera has it.
    QString address;
};

/// What the files of each camera are called. A name that one camera has had stays its own for as long as the program
/// runs, so that no save writes over what another camera has left. GUI thread.
class FileNames {
public:
    /// Names that no camera's files may have.
    explicit FileNames(const QStringList& reserved = {});

    /// For each of `cameras`, which are all that the host knows, the first part of its files' names. Those that are
    /// called alike, also where the case of letters does not count, carry their address.
    QStringList of(const QList<NamedCamera>& cameras);

private:
    /// Whether the camera of `address` may have the name; it is its own then.
    bool take(const QString& name, const QString& address);

    /// The address of whose it is, by the name without its case; empty: nobody's.
    QHash<QString, QString> m_owners;
};
