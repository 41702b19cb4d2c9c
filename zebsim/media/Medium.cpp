#include "Medium.h"

#include "TextKey.h"
#include "ZebMedia.h"

#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QFileInfo>
#include <QStorageInfo>

#include <sys/stat.h>

#include <algorithm>
#include <stdexcept>
#include <utility>

namespace {

constexpr int MostLevels = 8;
constexpr QDir::Filters All = QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot;

[[noreturn]] void fail(const QString& medium, const QString& reason) {
    throw std::runtime_error(QString(medium % QStringLiteral(": ") % reason).toStdString());
}

/// The folder itself, without links. It may be erased whole, so it is none that other things are in.
QString madeFolder(const RigMedium& settings) {
    if (settings.folder.isEmpty() || !QDir().mkpath(settings.folder)) {
        fail(settings.name, TextKey("its folder can't be made"));
    }
    const QString folder = QDir(settings.folder).canonicalPath();
    if (folder == QDir::rootPath() ||
        QString(QDir::homePath() % QLatin1Char('/')).startsWith(folder % QLatin1Char('/'))) {
        fail(settings.name, TextKey("this folder can't be a medium"));
    }
    return folder;
}

/// Tells a folder from another one that stands, or a link leads to, where it was.
QPair<quint64, quint64> folderId(const QString& path) {
    struct stat info {};
    const bool isFolder = ::stat(QFile::encodeName(path), &info) == 0 && S_ISDIR(info.st_mode);
    return isFolder ? qMakePair(quint64(info.st_dev), quint64(info.st_ino)) : qMakePair(quint64(0), quint64(0));
}

void addRecordings(const QString& folder, int levels, QStringList& paths) {
    const QFileInfoList entries =
        QDir(folder).entryInfoList(QDir::AllEntries | QDir::System | QDir::NoDotAndDotDot, QDir::Name);
    for (const QFileInfo& entry : entries) {
        if (entry.isSymLink()) {
            continue;
        }
        const QString suffix = entry.suffix().toLower();
        if (entry.isDir() && levels > 1) {
            addRecordings(entry.filePath(), levels - 1, paths);
        } else if (!entry.isDir() && (suffix == QLatin1String("cih") || suffix == QLatin1String("cihx"))) {
            paths.append(entry.filePath());
        }
    }
}

}  // namespace

QStringList recordingsBelow(const QString& folder) {
    QStringList paths;
    addRecordings(folder, MostLevels, paths);
    return paths;
}

Medium::Medium(const RigMedium& settings, zeb::Medium place)
    : m_kind(settings.kind),
      m_place(std::move(place)),
      m_folder(madeFolder(settings)),
      m_folderId(folderId(m_folder)),
      m_capacity(settings.capacity),
      m_isProtected(settings.isProtected),
      m_label(MediumLabel::read(m_folder)) {
    if (!settings.password.isEmpty() && !hasPassword()) {
        MediumLabel label = m_label;
        label.setPassword(settings.password);
        label.write(m_folder);
        m_label = label;
    }
}

bool Medium::isThere() const {
    return m_isIn && m_folderId != QPair<quint64, quint64>() && folderId(m_folder) == m_folderId;
}

QString Medium::driveName() const {
    return kindOf().isLettered ? zeb::driveLetter(m_place.drive) : name();
}

bool Medium::holds(const QString& path) const {
    return path.startsWith(m_folder % QLatin1Char('/')) || path == m_folder;
}

QString Medium::pathIn(const QString& path) const {
    return QDir(m_folder).relativeFilePath(path);
}

qint64 Medium::used() const {
    qint64 bytes = 0;
    QDirIterator files(m_folder, QDir::Files | QDir::Hidden | QDir::System, QDirIterator::Subdirectories);
    while (files.hasNext()) {
        files.next();
        const QFileInfo file = files.fileInfo();
        bytes += file.isSymLink() || file.fileName() == MediumLabel::fileName() ? 0 : file.size();
    }
    return bytes;
}

zeb::MediumUse Medium::use() const {
    const qint64 bytes = used();
    const qint64 capacity = m_capacity > 0 ? m_capacity : bytes + QStorageInfo(m_folder).bytesAvailable();
    return {capacity, bytes, m_label.erased + bytes};
}

qint64 Medium::available() const {
    const qint64 onDisk = QStorageInfo(m_folder).bytesAvailable();
    return m_capacity > 0 ? std::clamp<qint64>(m_capacity - used(), 0, onDisk) : onDisk;
}

void Medium::store(const MediumLabel& label) {
    if (!isThere()) {
        fail(name(), TextKey("it is not there any more"));
    }
    if (m_isProtected) {
        fail(name(), TextKey("it is write protected"));
    }
    label.write(m_folder);
    m_label = label;
}

void Medium::setPassword(const QString& password) {
    MediumLabel label = m_label;
    label.setPassword(password);
    store(label);
    m_isUnlocked = true;
}

void Medium::setDataName(const QString& path, const QString& name) {
    MediumLabel label = m_label;
    label.names.insert(pathIn(path), name);
    store(label);
}

bool Medium::erase() const {
    // What a folder holds comes after it, so that the list backwards is the order to erase in.
    QStringList paths;
    QDirIterator entries(m_folder, All, QDirIterator::Subdirectories);
    while (entries.hasNext()) {
        paths.prepend(entries.next());
    }
    paths.removeOne(QDir(m_folder).filePath(MediumLabel::fileName()));
    bool isErased = true;
    for (const QString& path : std::as_const(paths)) {
        if (!isThere()) {
            return false;
        }
        const QFileInfo entry(path);
        isErased &= entry.isDir() && !entry.isSymLink() ? QDir().rmdir(path) : QFile::remove(path);
    }
    return isErased && isThere();
}

void Medium::noteErased(qint64 bytes) {
    MediumLabel label = m_label;
    label.erased += bytes;
    const QStringList named = label.names.keys();
    for (const QString& path : named) {
        if (!QFileInfo::exists(QDir(m_folder).filePath(path))) {
            label.names.remove(path);
        }
    }
    store(label);
}
