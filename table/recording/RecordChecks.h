#pragma once

#include "ZebTypes.h"

class GatheredFailures;
class ZebHost;

/// The mark that the user gives a recording after looking through it. GUI thread.
class RecordChecks {
public:
    explicit RecordChecks(ZebHost& host) : m_host(host) {}

    /// Of the connected cameras that are selected, in memory mode only. Throws what host and documents throw.
    void set(const DocKeyList& keys, bool check);
    /// No recording counts as checked any more. A camera that fails keeps no other from it.
    void clear(GatheredFailures& failures);
    /// Whether every connected camera that holds a recording has its mark. One that does not answer has not been looked
    /// at, and goes into `unread`.
    bool areComplete(GatheredFailures& unread) const;

private:
    ZebHost& m_host;
};
