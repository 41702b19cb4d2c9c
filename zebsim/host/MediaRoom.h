#pragma once

#include "MediaShelf.h"

#include <QString>

#include <map>
#include <memory>
#include <mutex>

/// How full the media become while one save writes to them. Any thread.
class MediaRoom {
public:
    /// `shelf` must outlive the object.
    explicit MediaRoom(const MediaShelf& shelf) : m_shelf(shelf) {}

    /// Why a file of so many bytes can't be written, in the words of the system; empty when it can, or is on no medium.
    QString fault(const QString& path, qint64 bytes);

private:
    struct Filled {
        MediaShelf::Held medium;
        qint64 room = 0;
    };
    Filled& filled(const QString& folder);

    const MediaShelf& m_shelf;
    std::map<QString, std::shared_ptr<Filled>> m_folders;
    std::mutex m_mutex;
};
