#include "HostDisk.h"

#include "Camera.h"
#include "CameraBank.h"
#include "MediaShelf.h"
#include "RecordedPictures.h"

#include <algorithm>

TargetDisk::Folder HostDisk::folder(const QString& path) {
    Folder folder = RealDisk::folder(path);
    const MediaShelf::Held medium = m_shelf.at(path);
    if (medium && folder.state != Folder::Impossible) {
        folder.fileSystem = medium->folder().toUtf8();
        folder.available = std::min(folder.available, medium->available());
        folder.state = medium->isProtected() ? Folder::ReadOnly : folder.state;
    }
    return folder;
}

bool HostDisk::isOpen(const QString& path) {
    if (!m_open) {
        m_open.emplace();
        for (const Camera* camera : m_cameras.files()) {
            for (const QString& file : camera->state().pictures->files()) {
                m_open->insert(fileKey(file));
            }
        }
    }
    return m_open->contains(fileKey(path));
}
