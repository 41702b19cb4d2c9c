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

QString MediaRoom::fault(const QString& path) {
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
    for (const QString& begun : QStringList(std::exchange(filled.begun, {}))) {
        const QFileInfo file(begun);
        if (file.exists()) {
            filled.room -= file.size();
            filled.largest = std::max(filled.largest, file.size());
        } else {
            filled.begun.append(begun);
        }
    }
    // Those that are on their way need room as well.
    const qint64 needed = std::max<qint64>(1, filled.largest * (filled.begun.size() + 1));
    if (filled.room < needed) {
        return qt_error_string(ENOSPC);
    }
    filled.begun.append(path);
    return {};
}
