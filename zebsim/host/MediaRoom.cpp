#include "MediaRoom.h"

#include <QFileInfo>

#include <algorithm>
#include <cerrno>

MediaRoom::Filled& MediaRoom::filled(const QString& folder) {
    std::shared_ptr<Filled>& found = m_folders[folder];
    if (!found) {
        const MediaShelf::Held medium = m_shelf.at(folder);
        const auto same = std::find_if(m_folders.begin(), m_folders.end(), [&](const auto& other) {
            return other.second && other.second->medium == medium;
        });
        found = same != m_folders.end() ? same->second : std::make_shared<Filled>(Filled{medium});
        if (medium && same == m_folders.end()) {
            found->room = medium->available();
        }
    }
    return *found;
}

QString MediaRoom::fault(const QString& path, qint64 bytes) {
    const std::lock_guard lock(m_mutex);
    Filled& filled = this->filled(QFileInfo(path).path());
    if (!filled.medium) {
        return {};
    }
    if (!filled.medium->isThere()) {
        return qt_error_string(ENODEV);
    }
    if (filled.medium->isProtected()) {
        return qt_error_string(EROFS);
    }
    // An old file that goes leaves its room.
    const qint64 needed = bytes - QFileInfo(path).size();
    if (filled.room < needed) {
        return qt_error_string(ENOSPC);
    }
    filled.room -= needed;
    return {};
}
