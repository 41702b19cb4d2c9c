#pragma once

#include <QHash>
#include <QSet>
#include <QString>

/// What saves that have not written all their files yet have promised to write, so that no other one takes a name of
/// theirs. GUI thread.
class NamePromises {
public:
    /// A save, from the first of its names to the end of its last file. The one that began last composes names.
    class Save {
    public:
        explicit Save(NamePromises& promises) : m_promises(promises), m_number(++promises.m_last) {
            promises.m_saves.insert(m_number, {});
        }
        ~Save() { m_promises.m_saves.remove(m_number); }
        Q_DISABLE_COPY(Save)

    private:
        NamePromises& m_promises;
        const int m_number;
    };

    /// The save that composes names has composed this one: a file by its path without what its name ends in.
    void promise(const QString& path);
    /// Whether another save than the one that composes has promised a folder there or below.
    bool isFolderTaken(const QString& path) const;
    /// Whether any save has promised that file.
    bool isPathTaken(const QString& path) const;

private:
    struct Promised {
        QSet<QString> folders;
        QSet<QString> paths;
    };
    QHash<int, Promised> m_saves;
    int m_last = 0;
};
