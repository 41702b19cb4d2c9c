#pragma once

#include "NamePromises.h"
#include "ZebSaver.h"

struct HostContext;

/// Whether images are being saved, what their files are called, and the way to the clipboard.
class SimSaver : public ZebSaver {
public:
    explicit SimSaver(const HostContext& host) : m_host(host) {}

    NamePromises& promises() { return m_promises; }

    /// The preferences `save/fixedgroupdir` and `save/substitutefolder`.
    bool getFixedGroupDir(QString& out) const override { return getName("save/fixedgroupdir", out); }
    bool getSubstituteFolder(QString& out) const override { return getName("save/substitutefolder", out); }
    void setLastGroupDir(const QString& name) override;
    void setLastFolder(const QString& folder) override;
    void setLastPath(const QString& path) override;
    /// Nothing is remembered but what saves have promised, and that stands.
    void resetNameState() override;
    bool isFolderTaken(const QString& path) const override { return m_promises.isFolderTaken(path); }
    bool isPathTaken(const QString& path) const override { return m_promises.isPathTaken(path); }
    bool isSaving() const override;
    bool isBgSaving() const override;
    bool isBgConverting() const override;
    void copyToClipboard(int what) override;
    void snapShot(int mode) override;

private:
    bool getName(const char* key, QString& out) const;

    const HostContext& m_host;
    NamePromises m_promises;
};
