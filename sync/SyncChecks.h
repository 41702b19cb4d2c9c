#pragma once

#include <QString>

#include <optional>

class DOC_Interface;
class ZebHost;

/// Why a camera can't share a signal with the others of the table.
enum class SyncObstacle { Dummy, Unsupported, TriggerMode, LowLight, MixedExposures, DualSlope, AutoExposure };

/// A key for translation.
QString textOf(SyncObstacle obstacle);

/// Whether cameras of different exposure can share a signal in this trigger mode.
bool suitsMixedExposures(int triggerMode);

struct SyncFinding {
    SyncObstacle obstacle;
    /// Never null. Of exposures that are mixed the first camera.
    DOC_Interface* doc;
};

/// What keeps the cameras of the table from a common signal; of several what is looked at first. Asks each camera, and
/// may throw what host and documents throw. GUI thread.
std::optional<SyncFinding> firstSyncObstacle(ZebHost& host);

/// What keeps this camera from it, whatever the others have; likewise.
std::optional<SyncObstacle> syncObstacleOf(ZebHost& host, DOC_Interface& doc);

/// Throws a `UTL_Exception` with the first obstacle, in the user's language; likewise.
void checkSyncCapability(ZebHost& host);
