#pragma once

#include "MediaShelf.h"
#include "ZebTypes.h"

#include <QHash>
#include <QVariantList>

#include <optional>

class Camera;
class SavedCheck;
struct HostContext;

/// The recordings on the media that are open, which are documents. GUI thread.
class MediumDocs {
public:
    explicit MediumDocs(const HostContext& host) : m_host(host) {}

    /// Opens all recordings of the medium, and tells the user which can't be.
    void open(const MediaShelf::Held& medium);
    /// Those of the open medium of that kind are documents no more.
    void close(int kind);
    /// In the order of the media, and of their files on each.
    DocKeyList keys() const;

    /// What the medium tells of it; nothing of a document on none.
    std::optional<zeb::MediumData> dataOf(const Camera& camera) const;
    /// Whether it is on a medium that takes changes.
    bool isChangeable(const Camera& camera) const;
    /// `sequence` counts those of one name, from 1. Throws.
    void setName(const Camera& camera, const QString& name, int sequence);
    /// Its files and the document go. False when a file stays; what tells of them stays as well then. Throws when they
    /// are not those that were opened.
    bool remove(const Camera& camera);
    /// Tells the user which of the recordings, by `datano` and `serialno`, stand in files below `folder`.
    void checkSaved(const QVariantList& records, const QString& folder) const;

private:
    struct Doc {
        int kind = 0;
        zeb::MediumData data;
    };
    MediaShelf::Held mediumOf(DOCKEY key) const;
    QString lineOf(DOCKEY key, const QVariantMap& record, const SavedCheck& check) const;

    const HostContext& m_host;
    QHash<DOCKEY, Doc> m_docs;
};
