#include "HostNameSource.h"

#include "HostNamedDocument.h"
#include "ZebDocManager.h"
#include "ZebHost.h"
#include "ZebSaver.h"

#include <QDir>
#include <QFileInfo>

QVariant HostNameSource::pref(const QString& key) const {
    return m_host.getPref(key);
}

bool HostNameSource::isFileMode() const {
    return m_host.isFileMode();
}

bool HostNameSource::isMemoryMode() const {
    return m_host.isMemoryMode();
}

std::optional<QString> HostNameSource::fixedGroupDir() const {
    QString name;
    return m_host.saver().getFixedGroupDir(name) ? std::optional(name) : std::nullopt;
}

std::optional<QString> HostNameSource::substituteFolder() const {
    QString folder;
    return m_host.saver().getSubstituteFolder(folder) ? std::optional(folder) : std::nullopt;
}

bool HostNameSource::isFolderTaken(const QString& path) const {
    return m_host.saver().isFolderTaken(path);
}

bool HostNameSource::isPathTaken(const QString& path) const {
    return m_host.saver().isPathTaken(path);
}

void HostNameSource::setLastGroupDir(const QString& name) {
    m_host.saver().setLastGroupDir(name);
}

void HostNameSource::setLastFolder(const QString& folder) {
    m_host.saver().setLastFolder(folder);
}

void HostNameSource::setLastPath(const QString& path) {
    m_host.saver().setLastPath(path);
}

std::unique_ptr<NamedDocument> HostNameSource::document(DOCKEY key) const {
    DOC_Interface* document = m_host.docManager().getDoc(key, 1);
    return document ? std::make_unique<HostNamedDocument>(*document) : nullptr;
}

bool HostNameSource::folderExists(const QString& path) const {
    return QFileInfo(path).isDir();
}

QStringList HostNameSource::fileNames(const QString& folder) const {
    return QDir(folder).entryList(QDir::Files | QDir::Hidden | QDir::System, QDir::Unsorted);
}
