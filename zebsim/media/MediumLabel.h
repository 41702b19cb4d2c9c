#pragma once

#include <QByteArray>
#include <QHash>
#include <QString>

/// What a medium keeps about itself, in a hidden file of its folder: its password, as a salted hash, the names of its
/// recordings, and how much was erased from it.
class MediumLabel {
public:
    /// The file's name in the folder.
    static const QString& fileName();
    /// Of the medium with that folder; one without the file has an empty label. Throws `std::runtime_error`, which
    /// names the file, when it can't be used.
    static MediumLabel read(const QString& folder);
    /// Throws in the same way.
    void write(const QString& folder) const;

    bool hasPassword() const { return !m_hash.isEmpty(); }
    bool fits(const QString& password) const;
    /// An empty one takes it away.
    void setPassword(const QString& password);

    /// By path in the folder; those without a name are not in it.
    QHash<QString, QString> names;
    /// Bytes that were on it and are no more.
    qint64 erased = 0;

private:
    QByteArray m_salt;
    QByteArray m_hash;
};
