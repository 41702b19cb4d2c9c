#pragma once

#include "InformationFile.h"
#include "ZebTypes.h"

#include <QHash>
#include <QStringList>

class TargetDisk;
struct HostContext;

/// The recordings in files that are open as documents. GUI thread.
class FileDocs {
public:
    explicit FileDocs(const HostContext& host) : m_host(host) {}

    /// What has come of paths that were to be opened.
    struct Opened {
        /// Those that are open by now, in the order of the paths.
        DocKeyList keys;
        /// Those of them of which files are missing.
        DocKeyList incomplete;
        /// A line for each that could not be opened, or of which files are missing.
        QStringList faults;
    };
    /// Opens those that are not open yet, by the files that tell of them; one that tells something else by now is a
    /// fault. They are listed in file mode; `isHidden` ones are known by their keys alone, and always opened anew.
    Opened open(const QStringList& paths, bool isHidden = false);
    /// The user's own: tells what can't be opened, and goes into file mode when something is open, unless a recording
    /// is under way.
    void openAndShow(const QStringList& paths);
    /// What stood in the file that tells of one that is open.
    RecordingInformation told(DOCKEY key) const { return m_told.value(key); }
    /// Throws `JsonError` when that file, at `path`, tells something else by now, or nothing.
    void checkUnchanged(DOCKEY key, const QString& path) const;
    void close(const DocKeyList& keys);
    void closeAll();

private:
    /// By the paths of the files that tell of them.
    QHash<QString, DOCKEY> present() const;
    void openOne(const QString& path, TargetDisk& disk, bool isHidden, Opened& opened);

    const HostContext& m_host;
    QHash<DOCKEY, RecordingInformation> m_told;
};
