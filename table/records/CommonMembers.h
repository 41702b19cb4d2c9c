#pragma once

#include <QString>

class DOC_Interface;
class Record;

/// Members that are read for every row, but for its alerts, and those of every row in live mode. What steers the row
/// comes first.
namespace commonmembers {

/// Word for a camera's raw status; empty for a status that has none. The page knows its pictures by these words.
QString statusText(int cameraStatus);

void addAlways(Record& record, DOC_Interface& doc);

/// Answers whether the camera is in low light mode.
bool addLive(Record& record, DOC_Interface& doc, bool connected);

}  // namespace commonmembers
