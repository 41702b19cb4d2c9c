#pragma once

#include "HostContext.h"
#include "MediaShelf.h"
#include "MediumDocs.h"
#include "ZebMedia.h"

#include <QTimer>

/// The storage media of the shelf, as plug-ins and pages reach them. The recordings of one that is pulled out are no
/// documents any more, and the user is told.
class SimMedia : public ZebMedia {
public:
    explicit SimMedia(const HostContext& host);

    QList<zeb::Medium> getMedia(int kind) const override;
    bool getOpenMedium(int kind, zeb::Medium& out) const override;
    void openMedium(int kind, const zeb::Medium& medium) override;
    void closeMedium(int kind) override;
    /// Throws why one that is gone, write protected or locked, or an SD card, stays as it is. An open one is closed.
    bool formatMedium(int kind, const zeb::Medium& medium) override;
    zeb::MediumUse getMediumUse(int kind, const zeb::Medium& medium) const override;

    bool isMediumLocked(int kind, const zeb::Medium& medium) const override;
    bool hasMediumPassword(int kind, const zeb::Medium& medium) const override;
    bool unlockMedium(int kind, const zeb::Medium& medium) override;
    /// Throws when it has gone.
    std::optional<bool> setMediumPassword(int kind, const zeb::Medium& medium) override;

    void importDocs(const DocKeyList& keys) override;
    void openFiles(const QStringList& paths) override;
    void checkSaved(const QVariantList& records, const QString& folder) override;

    /// As the operations of `ZebDocManager`. One that is locked asks for its password.
    unsigned int sdDriveMask() const;
    bool getOpenSdDrive(int& drive) const;
    void openSdDrive(int drive);
    void close(int kind);
    MediumDocs& docs() { return m_docs; }
    const MediumDocs& docs() const { return m_docs; }

private:
    MediaShelf::Held there(int kind, const zeb::Medium& medium) const;
    bool unlock(const MediaShelf::Held& medium);
    void open(const MediaShelf::Held& medium);
    void checkThere(const MediaShelf::Held& medium) const;
    [[noreturn]] void refuse(const QString& text, const QString& medium) const;

    const HostContext& m_host;
    MediumDocs m_docs;
    /// A folder can go without a word.
    QTimer m_look;
    /// Ends what this object is told of.
    QObject m_watch;
};
