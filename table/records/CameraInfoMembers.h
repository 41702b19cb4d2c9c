#pragma once

class DOC_Interface;
class Record;

/// Members of a row of the camera information tab.
namespace camerainfo {

void add(Record& record, DOC_Interface& doc);

}  // namespace camerainfo
