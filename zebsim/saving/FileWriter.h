#pragma once

#include <QByteArray>
#include <QString>

/// What may stand under a file's name before: nothing, or an old file that is to go.
enum class Over { Nothing, OldFile };

/// How a file that is whole comes by its name. Each is for file systems that can't do the one before it. A program that
/// is killed leaves nothing by the first, hidden files by the others, and by the last perhaps an empty one.
enum class Naming { Unnamed, Rename, Link, Claim };

/// A file that has its name only once it is whole; when it is destroyed before, nothing is left of it. It is on the
/// disk for sure after `syncDisk`, or, where a link has led elsewhere, once it has its name. Everything throws
/// `FileError`. One thread at a time.
class FileWriter {
public:
    /// The folder must be there. Where an old file may go, a link is followed, and its permissions are kept.
    FileWriter(QString path, Over over, Naming naming = Naming::Unnamed);
    ~FileWriter();
    FileWriter(const FileWriter&) = delete;
    FileWriter& operator=(const FileWriter&) = delete;

    void write(const QByteArray& bytes);
    int descriptor() const { return m_descriptor; }
    /// Where other programs of this user find it as long as it has no name.
    QString temporaryPath() const;
    /// Gives it its name.
    void complete();

private:
    bool openUnnamed();
    void openHidden();
    /// Where a file without a name gets none in the end.
    void copyToHidden();
    int takeFreeName();
    int replaceOld();
    [[noreturn]] void fail(int error) const;

    const QString m_path;
    const Over m_over;
    Naming m_naming;
    QByteArray m_folder;
    /// The path, or where its link leads.
    QByteArray m_target;
    int m_descriptor = -1;
    /// Empty while it has no name at all, and once it has its own.
    QByteArray m_hidden;
};

/// A whole file of these bytes, or none. Throws `FileError`. Any thread.
void writeFile(const QString& path, const QByteArray& bytes, Over over, Naming naming = Naming::Unnamed);
/// Waits until all that was written in the file system of `folder` is on the disk. Throws `FileError`. Any thread.
void syncDisk(const QString& folder);
/// Removes what programs of this machine that were killed have left in `folder`. Any thread.
void removeLeftOvers(const QString& folder);
