#pragma once

#include "RecordRequest.h"
#include "ZebTypes.h"

#include <QString>

class CycleFailures;
class GroupFilter;
class ZebHost;
struct TableState;

/// What the page shows of the cameras, asked anew from the host at each call.
///
/// All operations may throw what the host throws. What a camera throws stays in its row, where there is one.
class RecordModel {
public:
    RecordModel(ZebHost& host, TableState& state) : m_host(host), m_state(state) {}

    struct Answer {
        QString json;
        /// The call has selected or deselected cameras.
        bool selectionChanged = false;
    };

    /// The rows that `request` (JSON) asks for and the batch row, as a `ShortReply` when it says what the page has
    /// taken. Remembers the request's group and filter.
    ///
    /// A camera that does not answer has a row all the same: the members that were read, and the reason as its alert.
    /// It is noted in `failures`, as are the cameras that have answered.
    Answer getRecords(const QString& request, CycleFailures& failures);

    /// JSON list of the groups, the last one standing for all; empty without groups.
    QString getGroups() const;
    QString getGroup() const;
    /// -1 in file mode.
    int getFilter() const;

    /// Whether the choice of live speed is suspended; with `zeb::NoDocKey` on any live camera, of which those that do
    /// not answer go into `failures`.
    bool isSuspendReduceMode(DOCKEY key, CycleFailures& failures) const;

private:
    void store(const RecordRequest& request) const;
    bool deselectOutside(const GroupFilter& group, CycleFailures& failures) const;
    DocKeyList keysFor(int filter) const;
    Answer build(const RecordRequest& request, const GroupFilter& group, CycleFailures& failures);

    ZebHost& m_host;
    TableState& m_state;
};
