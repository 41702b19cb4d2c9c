#pragma once

#include "NameSource.h"

class DOC_Interface;
class ZebHost;

/// The host and the disk themselves. A preference is that of the host; who has values that are not stored yet derives
/// and answers them.
class HostNameSource : public NameSource {
public:
    /// `host` is not owned and outlives it.
    explicit HostNameSource(ZebHost& host) : m_host(host) {}

    QVariant pref(const QString& key) const override;
    bool isFileMode() const override;
    bool isMemoryMode() const override;
    std::optional<QString> fixedGroupDir() const override;
    std::optional<QString> substituteFolder() const override;
    bool isFolderTaken(const QString& path) const override;
    bool isPathTaken(const QString& path) const override;
    void setLastGroupDir(const QString& name) override;
    void setLastFolder(const QString& folder) override;
    void setLastPath(const QString& path) override;
    std::unique_ptr<NamedDocument> document(DOCKEY key) const override;
    bool folderExists(const QString& path) const override;

private:
    QStringList fileNames(const QString& folder) const override;

    ZebHost& m_host;
};
