#pragma once

#include "SignalSources.h"
#include "records/CommonMembers.h"
#include "records/LiveControlMembers.h"
#include "records/MemoryInfoMembers.h"
#include "records/Record.h"

#include <optional>

class DOC_Interface;
class ZebHost;
struct TableState;

/// Builds the rows of one list of records: only the members of the tab and the mode that it was made for.
class RecordBuilder {
public:
    RecordBuilder(ZebHost& host, TableState& state, int tab);

    Record build(DOC_Interface& doc, const RowState& row);

private:
    QString alertOf(DOC_Interface& doc) const;
    void addLive(Record& record, DOC_Interface& doc, bool connected);
    void addMemory(Record& record, DOC_Interface& doc, bool connected);

    ZebHost& m_host;
    int m_tab;
    bool m_live;
    const SignalSources m_signal;
    /// The source of the signal is asked once for all rows.
    const bool m_signalGivesFrequency;
    std::optional<LiveControlMembers> m_liveControl;
    std::optional<MemoryInfoMembers> m_memoryInfo;
};
