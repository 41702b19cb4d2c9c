#pragma once

#include "ZebTypes.h"

class GatheredFailures;
class ZebHost;
struct TableState;

/// What an open table sets on host and cameras, and takes back when it closes. May throw what the host throws. Opening
/// and closing go over all cameras, whatever one of them fails at, and throw at their end.
class TableSession {
public:
    TableSession(ZebHost& host, TableState& state) : m_host(host), m_state(state) {}

    /// Heads that are ready or recording keep their lock.
    void open();
    /// From now on a recording takes all connected cameras. Doing so twice is closing once.
    void takeAllConnected();
    void close();
    /// Reads the default settings. A camera that is ready or recording keeps the table as it is.
    void loadDefaultSettings();
    /// The cameras that are connected already come into the table as one that connects does.
    void followConnectedDocs();

private:
    void clearLocks(bool recordingToo, GatheredFailures& failures);
    void connectSignalSources();
    DocList connected() const;

    ZebHost& m_host;
    TableState& m_state;
};
