#pragma once

#include "MediumKind.h"
#include "MediumLabel.h"
#include "Rig.h"

#include <QPair>
#include <QStringList>

#include <atomic>

/// Paths of the files in and below a folder that tell what was recorded, in order; links are not followed.
QStringList recordingsBelow(const QString& folder);

/// A storage medium that is in: the folder that stands for it. GUI thread, but what says "any thread".
class Medium {
public:
    /// `place` is where it is, with its name. Its folder is made, and it gets its password. Throws `std::runtime_error`
    /// with a text that names the medium or its file.
    Medium(const RigMedium& settings, zeb::Medium place);

    int kind() const { return m_kind; }
    const zeb::Medium& place() const { return m_place; }
    const QString& name() const { return m_place.name; }
    const MediumKind& kindOf() const { return mediumKinds()[std::size_t(m_kind)]; }
    /// What plug-ins list it as: the letter of its drive, as "D:", or its name.
    QString driveName() const;
    /// Without links in it. Any thread.
    const QString& folder() const { return m_folder; }
    /// Whether nothing may be written to it. Any thread.
    bool isProtected() const { return m_isProtected; }
    /// False once it is pulled out, or its folder has gone or is another one by now. Any thread.
    bool isThere() const;
    void pullOut() { m_isIn = false; }
    /// Whether `path`, without links, is in the folder. Any thread.
    bool holds(const QString& path) const;

    /// Looks at all files.
    zeb::MediumUse use() const;
    /// Bytes that there is room for. Looks at all files. Any thread.
    qint64 available() const;

    bool hasPassword() const { return m_label.hasPassword(); }
    /// It has a password that nobody has told since it is in.
    bool isLocked() const { return hasPassword() && !m_isUnlocked; }
    bool fits(const QString& password) const { return m_label.fits(password); }
    void unlock() { m_isUnlocked = true; }
    /// Who sets it knows it: it is unlocked. An empty one takes it away. These throw `std::runtime_error`.
    void setPassword(const QString& password);
    void setDataName(const QString& path, const QString& name);
    /// Of the recording whose file has that path; empty when it has none.
    QString dataName(const QString& path) const { return m_label.names.value(pathIn(path)); }

    QStringList recordings() const { return recordingsBelow(m_folder); }
    /// Erases all but what it keeps about itself; false when something stays. What lies behind a link is not touched.
    /// Any thread.
    bool erase() const;
    /// So many bytes went, and with them the names of what is not there any more. Throws as `setPassword`.
    void noteErased(qint64 bytes);

private:
    QString pathIn(const QString& path) const;
    /// Bytes of all files.
    qint64 used() const;
    void store(const MediumLabel& label);

    const int m_kind;
    const zeb::Medium m_place;
    const QString m_folder;
    const QPair<quint64, quint64> m_folderId;
    const qint64 m_capacity;
    const bool m_isProtected;
    std::atomic<bool> m_isIn{true};
    bool m_isUnlocked = false;
    MediumLabel m_label;
};
