#pragma once

#include "DocTurn.h"

#include <QPointer>

#include <map>

/// The documents that are handed out, by the level of the event loop that they live in. GUI thread.
class DocTurns {
public:
    /// Must outlive the object.
    explicit DocTurns(const HostContext& host) : m_host(host) {}

    SimDocument* document(const std::shared_ptr<Camera>& camera) { return turn().document(camera, m_host); }
    /// Documents handed out in this turn of the event loop.
    std::size_t handedOut() const;
    /// The documents of this turn are dead.
    void endTurn();
    /// Hands out none of the present documents any more; those that somebody works with go at the end of their turn.
    void forget() { m_turns.clear(); }

private:
    DocTurn& turn();

    const HostContext& m_host;
    QObject m_owner;
    std::map<int, QPointer<DocTurn>> m_turns;
};
