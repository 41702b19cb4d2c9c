#include "TargetDisk.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QStorageInfo>

#include <unistd.h>

#include <algorithm>

namespace {

/// The folder itself, or the nearest above it that is there.
QFileInfo nearest(const QString& path) {
    QFileInfo there(QDir::cleanPath(path));
    while (!there.exists() && !there.isSymLink() && there.path() != there.filePath()) {
        there.setFile(there.path());
    }
    return there;
}

}  // namespace

QString fileKey(const QString& path) {
    return path.normalized(QString::NormalizationForm_C).toCaseFolded();
}

TargetDisk::Folder RealDisk::folder(const QString& path) {
    const QFileInfo there = nearest(path);
    const QStorageInfo storage(there.filePath());
    Folder folder{Folder::There, storage.device() + storage.rootPath().toUtf8(), storage.bytesAvailable()};
    if (!there.isDir()) {
        folder.state = Folder::Impossible;
    } else if (storage.isReadOnly() || ::access(QFile::encodeName(there.filePath()), W_OK | X_OK) != 0) {
        folder.state = Folder::ReadOnly;
    } else if (there.filePath() != QDir::cleanPath(path)) {
        folder.state = Folder::IsMade;
    }
    return folder;
}

QString RealDisk::canonical(const QString& folder) {
    const QFileInfo there = nearest(folder);
    return there.canonicalFilePath() % QDir::cleanPath(folder).mid(there.filePath().size()) % QLatin1Char('/');
}

bool RealDisk::isPlainFile(const QString& path) {
    const QFileInfo there(path);
    return there.isFile() && !there.isSymLink();
}

const QStringList& RealDisk::namesIn(const QString& folder) {
    const auto [entry, isNew] = m_names.try_emplace(QDir::cleanPath(folder));
    if (isNew) {
        entry->second =
            QDir(folder).entryList(QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot, QDir::NoSort);
        std::sort(entry->second.begin(), entry->second.end());
    }
    return entry->second;
}
