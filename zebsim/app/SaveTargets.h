#pragma once

#include "SavePlan.h"

#include <QDateTime>
#include <QStringList>

#include <vector>

class SimHost;

/// What the track's files are written for.
zeb::FileType fileType(const SaveTrack& track);

/// The plan for `tracks`, of which there is one at least, as the preferences say. A camera that does not tell what its
/// names need is left out. The names are promised by the save that began last. GUI thread.
SavePlan composePlan(SimHost& host, const std::vector<SaveTrack>& tracks, const QStringList& absent,
                     const QDateTime& time);

/// Name of that partition's files, as that of one track alone; with the custom information of its own recording.
/// Throws.
QString partitionFileName(SimHost& host, zeb::FileType type, DOCKEY key, PARTITIONNUMBER partition, bool withDetails,
                          const QDateTime& time);

/// Path of a picture of that camera, without what its name ends in. Throws.
QString snapShotStem(SimHost& host, DOCKEY key, const QDateTime& time);
