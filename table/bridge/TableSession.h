#pragma once

#include "GatheredFailures.h"
#include "ZebTypes.h"

class QWidget;
class ZebHost;
struct TableState;

/// What an open table sets on host and cameras, and takes back when it closes.
///
/// No step and no camera keeps the others from being done. What has failed is thrown at the end, a line each.
class TableSession {
public:
    TableSession(ZebHost& host, TableState& state) : m_host(host), m_state(state) {}

    /// Runs event loops. Heads that are ready or recording keep their lock, and the default settings are not loaded
    /// then. As long as they have never been accepted their dialog opens instead, over `window`, which may be null.
    /// Opening twice is closing once.
    void open(QWidget* window);
    void close();

private:
    /// From now on a recording takes all connected cameras.
    void takeAllConnected();
    void giveBackAllConnected();
    void loadDefaults(QWidget* window);
    bool isAnyArmed();
    void clearLocks(bool recordingToo);
    DocList connected();

    ZebHost& m_host;
    TableState& m_state;
    GatheredFailures m_failures;
};
