#pragma once

#include <QString>
#include <QStringList>

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

/// Members that stand in every row, and those of every row in live mode.
namespace commonmembers {

/// Alerts of the device and of its head, a line each; none twice.
QString alertText(const QStringList& deviceAlerts, const QStringList& headAlerts);

/// Word for a camera's raw status; empty for a status that has none. The page knows its pictures by these words.
QString statusText(int cameraStatus);

void addAlways(Record& record, DOC_Interface& doc, const RowState& row);

void addLive(Record& record, DOC_Interface& doc, bool connected, bool lowLight);

}  // namespace commonmembers
