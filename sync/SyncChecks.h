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
};

/// Why a camera can't share a signal with one in the trigger mode `reference`; the first reason, a key for translation.
/// Empty when it can.
QString syncObstacle(const SyncFitness& camera, int reference);

/// Why cameras of different exposure can't share a signal in this trigger mode, likewise.
QString mixedExposureObstacle(int triggerMode);

/// Throws a `UTL_Exception` with the first reason, in the user's language, why the cameras of the table can't share a
/// signal. Nothing is changed. May also throw what host and documents throw.
void checkSyncCapability(ZebHost& host);
