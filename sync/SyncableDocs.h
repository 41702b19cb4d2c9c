#pragma once

#include "ZebTypes.h"

/// The connected ones of `docs` that stand for a camera that is there. May throw what the documents throw.
DocList withoutDummies(const DocList& docs);
