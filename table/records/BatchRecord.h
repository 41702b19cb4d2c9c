#pragma once

#include "Record.h"
#include "ZebTypes.h"

class ZebHost;

/// The row that stands for all cameras: a copy of the one row that was chosen last.
class BatchRecord {
public:
    /// `chosen` is the document that the user chose last, `zeb::NoDocKey` when there is none.
    explicit BatchRecord(DOCKEY chosen) : m_chosen(chosen) {}

    /// Takes notice of each row, in their order. One that is not whole is not copied.
    void offer(DOCKEY key, bool selected, bool whole, const Record& record);

    /// The document that was copied: the chosen one, else the last that is selected, else `chosen` as it was.
    DOCKEY source() const;
    /// Whether the chosen one is listed and not whole.
    bool isChosenUnread() const { return m_chosenUnread; }
    /// The row, after all others were offered.
    Record build(const ZebHost& host) const;

private:
    DOCKEY m_chosen;
    DOCKEY m_lastSelected = zeb::NoDocKey;
    bool m_chosenListed = false;
    bool m_chosenUnread = false;
    int m_count = 0;
    Record m_chosenRecord;
    Record m_lastSelectedRecord;
};
