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
