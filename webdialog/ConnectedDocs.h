#pragma once

#include "ZebTypes.h"

class ZebDocManager;

/// The documents of `keys` that are there and connected, in the order of the keys.
DocList connectedDocs(ZebDocManager& documents, const DocKeyList& keys);
