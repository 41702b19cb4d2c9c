#pragma once

#include <QString>

class DOC_Interface;
class Record;

/// How a document stands in the table.
struct RowState {
    /// Number of the row, from 1.
    int recid = 0;
    bool connected = false;
    /// Both false for a document that is not connected.
    bool selected = false;
    bool current = false;
};

/// Members that stand in every row, but for its alerts, and those of every row in live mode.
namespace commonmembers {

/// Word for a camera's raw status; empty for a status that has none. The page knows its pictures by these words.
QString statusText(int cameraStatus);

void addAlways(Record& record, DOC_Interface& doc, const RowState& row);

void addLive(Record& record, DOC_Interface& doc, bool connected, bool lowLight);

}  // namespace commonmembers
