#pragma once

#include "Medium.h"

#include <map>
#include <memory>
#include <mutex>
#include <vector>

class HostEvents;

/// The storage media that are in, and which of them are open. GUI thread, but what says "any thread".
class MediaShelf {
public:
    using Held = std::shared_ptr<Medium>;

    /// `events` tells what becomes of the media, and must outlive the shelf.
    explicit MediaShelf(HostEvents& events) : m_events(events) {}

    /// Puts these in, in the place of all others. Answers why some can't be, a line each.
    QStringList replace(const QList<RigMedium>& media);
    /// Throws `std::runtime_error` with why it can't be.
    Held putIn(const RigMedium& medium);
    void pullOut(const Held& medium);
    /// Pulls out those whose folder has gone.
    void lookAround();

    /// Those that are there, in the order in which they were put in.
    std::vector<Held> media() const { return held(-1); }
    std::vector<Held> media(int kind) const { return held(kind); }
    /// Null when it is not there any more.
    Held find(int kind, const zeb::Medium& place) const;
    Held find(int kind, const QString& name) const;
    /// The one on which `path` is, which need not be there; null when it is on none. Any thread.
    Held at(const QString& path) const;

    /// One of a kind at a time is open; null for none.
    Held open(int kind) const;
    void setOpen(const Held& medium);
    void close(int kind);

private:
    std::vector<Held> held(int kind) const;
    zeb::Medium freePlace(const RigMedium& medium) const;

    HostEvents& m_events;
    std::vector<Held> m_media;
    std::map<int, Held> m_open;
    /// Guards the list where other threads read it.
    mutable std::mutex m_mutex;
};
