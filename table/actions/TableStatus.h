#pragma once

#include <QString>

class CycleFailures;
class ZebHost;
struct TableState;

/// How all cameras stand, whatever group and filter show, and what the last actions came to. GUI thread.
class TableStatus {
public:
    TableStatus(ZebHost& host, TableState& state) : m_host(host), m_state(state) {}

    /// JSON: `found`, `connected`, `locked` and `armed` (ready or recording) count cameras; `recordMs` is the time of
    /// the recording that runs, -1 without one; `search` what the last search found, as text; `result` as
    /// `ActionResult`, null at first. A camera that does not tell counts as found alone, and stands in `failures`.
    QString toJson(CycleFailures& failures) const;

private:
    qint64 recordMs() const;

    ZebHost& m_host;
    TableState& m_state;
};
