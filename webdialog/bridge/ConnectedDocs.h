#pragma once

#include "ZebTypes.h"

class GatheredFailures;
class ZebDocManager;

DocKeyList keysOf(const DocList& docs);

/// The documents of `keys` as they are now, without those whose camera is gone.
DocList docsOf(ZebDocManager& documents, const DocKeyList& keys);

/// The documents of `keys` that are there and connected, in the order of the keys. Throws when one of them does not
/// tell whether it is connected.
DocList connectedDocs(ZebDocManager& documents, const DocKeyList& keys);

/// The same without those that do not tell, which go into `failures`.
DocList connectedDocs(ZebDocManager& documents, const DocKeyList& keys, GatheredFailures& failures);

/// Of each device with connected heads among `keys` the first of them, in the order of the keys. Those that do not tell
/// go into `failures`.
DocList connectedDevices(ZebDocManager& documents, const DocKeyList& keys, GatheredFailures& failures);

/// What stands for the device of `doc`: the document that it belongs to as a head, else itself. Asks the camera.
DOC_Interface& deviceOf(DOC_Interface& doc);
