#pragma once

#include "ZebTypes.h"

class GatheredFailures;
class ZebDocManager;

/// The documents of `keys` that are there and connected, in the order of the keys. Throws when one of them does not
/// tell whether it is connected.
DocList connectedDocs(ZebDocManager& documents, const DocKeyList& keys);

/// The same without those that do not tell, which go into `failures`.
DocList connectedDocs(ZebDocManager& documents, const DocKeyList& keys, GatheredFailures& failures);
