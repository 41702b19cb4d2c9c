#pragma once

class DOC_Interface;
class Record;
class ZebHost;

/// Members of a row of the IRIG tab.
namespace irigmembers {

void add(Record& record, DOC_Interface& doc, const ZebHost& host, bool connected);

}  // namespace irigmembers
