#pragma once

#include "LiveControlMembers.h"
#include "MemoryInfoMembers.h"
#include "Record.h"
#include "SignalSources.h"
#include "ZebTypes.h"

#include <optional>

class CycleFailures;
class DOC_Interface;
class ZebHost;
struct TableState;

/// Builds the rows of one list of records: only the members of the tab and the mode that it was made for.
///
/// Whether a camera is connected, selected and current stands each for itself; then it is asked until it fails: what
/// steers its row comes first, then what the tab shows, its alerts last. The members that were not read are left out of
/// its record, and the reason stands as its alert. So one that does not answer costs a few questions a list, not all.
class RecordBuilder {
public:
    /// What the cameras fail to answer, and that they answer again, goes into `failures`.
    RecordBuilder(ZebHost& host, TableState& state, int tab, CycleFailures& failures);

    struct Row {
        Record record;
        bool selected = false;
        /// `build` has selected it.
        bool newlySelected = false;
        /// Everything was read.
        bool whole = false;
    };

    /// The row number `recid`, from 1. `select`: the camera is selected unless it is already. `failure`: what it has
    /// not answered before; empty for nothing. Does not throw what cameras throw.
    Row build(DOC_Interface& doc, DOCKEY key, int recid, bool select, QString failure);

    /// The name of a camera's row in `CycleFailures`.
    static QString sourceOf(DOCKEY key);

private:
    bool signalGivesFrequency() const;
    void note(const Row& row, DOC_Interface& doc, DOCKEY key, const QString& name, const QString& failure);
    void addMembers(Record& record, DOC_Interface& doc, bool connected);
    QString alertOf(DOC_Interface& doc) const;
    QStringList alertsOfParent(DOC_Interface& doc) const;
    void addLive(Record& record, DOC_Interface& doc, bool connected);
    void addMemory(Record& record, DOC_Interface& doc, bool connected);

    ZebHost& m_host;
    CycleFailures& m_failures;
    int m_tab;
    bool m_live;
    const SignalSources m_signal;
    /// The source of the signal is asked once for all rows.
    const bool m_signalGivesFrequency;
    std::optional<LiveControlMembers> m_liveControl;
    std::optional<MemoryInfoMembers> m_memoryInfo;
};
