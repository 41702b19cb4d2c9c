#pragma once

#include <QString>

class DOC_Interface;
class Record;
class ZebHost;

/// Members of the rows of the memory information tab: what a camera has recorded.
///
/// Made for one list of records; preferences are read once. Frames are counted from the frame of the trigger.
class MemoryInfoMembers {
public:
    explicit MemoryInfoMembers(const ZebHost& host);

    void add(Record& record, DOC_Interface& doc, bool connected) const;

private:
    void addRecording(Record& record, DOC_Interface& doc) const;

    bool m_delimitFrames;
    bool m_delimitRates;
    QString m_rateUnit;
};
