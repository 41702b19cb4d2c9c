#pragma once

#include "ZebTypes.h"

#include <QStringList>

/// What a partition is called: as in `names`, which has a place for each from the first on, or else by its number in
/// the user's language. Any thread.
QString partitionName(const QStringList& names, PARTITIONNUMBER partition);
