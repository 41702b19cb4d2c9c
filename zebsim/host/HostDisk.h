#pragma once

#include "TargetDisk.h"

#include <QSet>

#include <optional>

class CameraBank;
class MediaShelf;

/// The disk with the media in it, and with the recordings that are open: what is on a medium has the room that the
/// medium has, and its write protection. GUI thread.
class HostDisk : public RealDisk {
public:
    /// Both must outlive the object.
    HostDisk(const MediaShelf& shelf, const CameraBank& cameras) : m_shelf(shelf), m_cameras(cameras) {}

    Folder folder(const QString& path) override;
    bool isOpen(const QString& path) override;

private:
    const MediaShelf& m_shelf;
    const CameraBank& m_cameras;
    /// Keys of their files, once they are needed.
    std::optional<QSet<QString>> m_open;
};
