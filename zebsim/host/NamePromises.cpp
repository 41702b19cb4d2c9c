#include "NamePromises.h"

#include "TargetDisk.h"

#include <QDir>

#include <algorithm>

void NamePromises::promise(const QString& path) {
    if (m_saves.contains(m_last)) {
        const QString clean = QDir::cleanPath(path);
        Promised& promised = m_saves[m_last];
        promised.folders.insert(clean.left(clean.lastIndexOf(QLatin1Char('/')) + 1));
        promised.paths.insert(fileKey(clean));
    }
}

bool NamePromises::isFolderTaken(const QString& path) const {
    const QString folder = QDir::cleanPath(path) % QLatin1Char('/');
    const auto isThere = [&folder](const QString& promised) { return promised.startsWith(folder); };
    for (auto save = m_saves.begin(); save != m_saves.end(); ++save) {
        if (save.key() != m_last && std::any_of(save->folders.begin(), save->folders.end(), isThere)) {
            return true;
        }
    }
    return false;
}

bool NamePromises::isPathTaken(const QString& path) const {
    const QString clean = fileKey(QDir::cleanPath(path));
    return std::any_of(m_saves.begin(), m_saves.end(),
                       [&clean](const Promised& save) { return save.paths.contains(clean); });
}
