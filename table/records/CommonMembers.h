#pragma once

#include <QString>

class DOC_Interface;
class Record;

/// Members of every row in live mode.
namespace commonmembers {

/// Word for a camera's raw status; empty for a status that has none. The page knows its pictures by these words.
QString statusText(int cameraStatus);

/// What steers the row comes first. Answers whether the camera is in low light mode.
bool addLive(Record& record, DOC_Interface& doc, bool connected);

}  // namespace commonmembers
