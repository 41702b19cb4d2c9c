#pragma once

#include "ZebTypes.h"

#include <QList>
#include <QString>
#include <QVariantMap>

class ZebHost;

/// The lists of custom information of cameras, and their files. The page has a list as a JSON array of objects with
/// `name`, `value`, `unit` and the flag `display`; the first 64 items of a list are taken. No lock keeps a camera from
/// its list. In file mode there are no lists, and nothing is done. May throw what the host throws. GUI thread.
class CustomInformation {
public:
    explicit CustomInformation(ZebHost& host) : m_host(host) {}

    /// Empty for a camera that is gone or not connected. `withNumbers` gives each item a `recid`, from 1.
    QString listOf(DOCKEY key, bool withNumbers) const;
    /// Replaces the lists of those of `keys` that are connected, up to a camera that refuses an item: that one gets
    /// back the list it had, or it is told that it did not. What is no array changes nothing.
    void setLists(const DocKeyList& keys, const QString& json);

    /// The list of a file that the user chooses, with numbers; empty when there is none. Both run an event loop: the
    /// host must outlive it, `parent` need not.
    QString read(QWidget* parent);
    /// Into a file that the user chooses.
    void write(QWidget* parent, const QString& json);

private:
    ZebHost& m_host;
};
