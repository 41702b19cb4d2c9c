#pragma once

#include "MediaShelf.h"
#include "TargetDisk.h"

#include <QStringList>

/// How full the media become while one save writes to them. Any thread.
class MediaRoom {
public:
    /// `shelf` must outlive the object.
    explicit MediaRoom(const MediaShelf& shelf) : m_shelf(shelf) {}

    /// Why the next file can't be written, in the words of the system; empty when it can, or is on no medium. A file is
    /// taken to become as large as the largest of those before it on that medium.
    QString fault(const QString& path);

private:
    struct Filled {
        MediaShelf::Held medium;
        qint64 room = 0;
        qint64 largest = 0;
        /// Files that were on their way when they were last looked at.
        QStringList begun = {};
    };
    Filled& filled(const QString& folder);

    const MediaShelf& m_shelf;
    std::map<QString, std::shared_ptr<Filled>> m_folders;
    std::mutex m_mutex;
};
