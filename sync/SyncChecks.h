#pragma once

#include "ZebTypes.h"

#include <QList>
#include <QString>

class ZebHost;

/// What makes a camera fit or unfit for a common signal. A `zeb::TriggerMode`.
struct SyncFitness {
    bool supported = true;
    int triggerMode = zeb::TriggerStart;
    bool lowLight = false;
    bool delayed = false;
};

/// Why these cameras, in the table's order, can't share a signal; the first reason, a key for translation. Empty when
/// they can.
QString syncObstacle(const QList<SyncFitness>& cameras);

/// Throws a `UTL_Exception` with the first reason, in the user's language, why the cameras of the table can't share a
/// signal. Nothing is changed. May also throw what host and documents throw.
void checkSyncCapability(ZebHost& host);
