#pragma once

class DOC_Interface;
class Record;
class ZebHost;

/// Member of a row of the two plug-in tabs: the image plug-ins of the camera.
namespace pluginmembers {

void add(Record& record, DOC_Interface& doc, ZebHost& host, bool connected);

}  // namespace pluginmembers
