#pragma once

#include "ZebMedia.h"

struct HostContext;

/// Storage media. None is there: lists are empty, and whoever opens one is told that it has gone.
class SimMedia : public ZebMedia {
public:
    explicit SimMedia(const HostContext& host) : m_host(host) {}

    QList<zeb::Medium> getMedia(int kind) const override;
    bool getOpenMedium(int kind, zeb::Medium& out) const override;
    void openMedium(int kind, const zeb::Medium& medium) override;
    void closeMedium(int kind) override;
    bool formatMedium(int kind, const zeb::Medium& medium) override;
    zeb::MediumUse getMediumUse(int kind, const zeb::Medium& medium) const override;

    bool isMediumLocked(int kind, const zeb::Medium& medium) const override;
    bool hasMediumPassword(int kind, const zeb::Medium& medium) const override;
    bool unlockMedium(int kind, const zeb::Medium& medium) override;
    std::optional<bool> setMediumPassword(int kind, const zeb::Medium& medium) override;

    void importDocs(const DocKeyList& keys) override;
    void openFiles(const QStringList& paths) override;
    void checkSaved(const QVariantList& records, const QString& folder) override;

    /// As `ZebDocManager::openSdDrive`.
    void openSdDrive(int drive);

private:
    [[noreturn]] void refuse(const QString& medium) const;

    const HostContext& m_host;
};
