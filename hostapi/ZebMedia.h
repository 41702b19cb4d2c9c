#pragma once

#include "ZebTypes.h"

#include <QStringBuilder>
#include <QStringList>
#include <QVariantList>

#include <optional>

namespace zeb {

/// They stand in the same place, whatever they are called.
inline bool isSamePlace(const Medium& left, const Medium& right) {
    return left.type == right.type && left.drive == right.drive && left.slot == right.slot;
}

/// Of an SD card's drive, counted from 0, as "D:".
inline QString driveLetter(int drive) {
    return QChar('A' + drive) % QLatin1Char(':');
}

}  // namespace zeb

/// Storage media of a `zeb::MediumKind`, and recordings that come from anywhere but a camera's memory. GUI thread.
class ZebMedia {
public:
    virtual ~ZebMedia() = default;

    /// Those that are there, in the order in which the host shows them.
    virtual QList<zeb::Medium> getMedia(int kind) const = 0;
    /// The one whose recordings are documents now; one of a kind at a time. False, and `out` as it was, for none.
    virtual bool getOpenMedium(int kind, zeb::Medium& out) const = 0;
    /// Its recordings become documents, and are none any more. To open throws when the medium is gone or locked.
    virtual void openMedium(int kind, const zeb::Medium& medium) = 0;
    virtual void closeMedium(int kind) = 0;
    /// Erases all that is on it. False when some of it stays. Throws why one stays as it is: it is gone, write
    /// protected, locked, or of a kind that its camera formats.
    virtual bool formatMedium(int kind, const zeb::Medium& medium) = 0;
    /// All 0 of one that is gone.
    virtual zeb::MediumUse getMediumUse(int kind, const zeb::Medium& medium) const = 0;

    /// Whether a password keeps it from being opened, and whether it has one.
    virtual bool isMediumLocked(int kind, const zeb::Medium& medium) const = 0;
    virtual bool hasMediumPassword(int kind, const zeb::Medium& medium) const = 0;
    /// The dialogs of a password: the one that opens the medium, true once it is open to all, and the one that gives
    /// it a new one, false when that failed. Each runs an event loop until the user has closed it. `setMediumPassword`
    /// answers nothing when the user has given up. Both throw when the medium is gone.
    virtual bool unlockMedium(int kind, const zeb::Medium& medium) = 0;
    virtual std::optional<bool> setMediumPassword(int kind, const zeb::Medium& medium) = 0;

    /// Begins to copy the recordings of these documents to the host's own disk, as the user then says.
    virtual void importDocs(const DocKeyList& keys) = 0;
    /// Opens files of recordings as documents, each by its own; what can't be opened is told by the host.
    virtual void openFiles(const QStringList& paths) = 0;
    /// Compares recordings on media with what was saved of them in `folder`, which the host then tells. A record is a
    /// map of `datano` and `serialno`.
    virtual void checkSaved(const QVariantList& records, const QString& folder) = 0;
};
