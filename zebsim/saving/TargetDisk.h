#pragma once

#include <QHash>
#include <QSet>
#include <QString>
#include <QStringList>

#include <map>

/// What two paths have in common that lead to one file, at least on a system that does not know small letters from
/// large ones, nor a letter with its accent from the two of them.
QString fileKey(const QString& path);

/// What of a disk decides where files can be written.
class TargetDisk {
public:
    virtual ~TargetDisk() = default;

    /// What becomes of a folder that files are to go to.
    struct Folder {
        enum State { There, IsMade, ReadOnly, Impossible };
        State state = There;
        /// What its file system is told from others by, and the bytes that it has room for.
        QByteArray fileSystem;
        qint64 available = 0;
    };
    virtual Folder folder(const QString& path) = 0;
    /// The folder itself, whatever links lead to it, with a '/' at its end.
    virtual QString canonical(const QString& folder) = 0;
    /// Whether a file itself stands there, and neither a folder, a link, a pipe nor a device.
    virtual bool isPlainFile(const QString& path) = 0;
    /// All that a folder holds, hidden files and broken links too, in the order of `operator<`; empty when it is not
    /// there.
    virtual const QStringList& namesIn(const QString& folder) = 0;
    /// Whether the program still needs a file, to whose folder no link leads: it is of a recording that is open.
    virtual bool isOpen(const QString& path) = 0;
};

/// The disk of this machine; each folder is looked at once.
class RealDisk : public TargetDisk {
public:
    Folder folder(const QString& path) override;
    QString canonical(const QString& folder) override;
    bool isPlainFile(const QString& path) override;
    const QStringList& namesIn(const QString& folder) override;
    bool isOpen(const QString&) override { return false; }

private:
    /// References to what it holds stay valid.
    std::map<QString, QStringList> m_names;
};
