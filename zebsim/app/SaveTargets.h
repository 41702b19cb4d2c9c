#pragma once

#include "SavePlan.h"

#include <QDateTime>
#include <QStringList>

#include <functional>
#include <memory>
#include <vector>

class NamedDocument;
class SimHost;

/// What the track's files are written for.
zeb::FileType fileType(const SaveTrack& track);

/// Why the disk does not take a file: as is planted, or for want of room on a medium, which is looked at from now on.
std::function<QString(const QString& path, qint64 bytes)> diskFaultOf(SimHost& host);

/// The plan for `tracks`, of which there is one at least, as the preferences say. A camera that does not tell what its
/// names need is left out. The names are promised by the save that began last. GUI thread.
SavePlan composePlan(SimHost& host, const std::vector<SaveTrack>& tracks, const QStringList& absent,
                     const QDateTime& time);

/// What the names of that partition's files are composed from: its document, with the custom information of its own
/// recording. Null when the camera is gone.
std::unique_ptr<NamedDocument> namedPartition(SimHost& host, DOCKEY key, PARTITIONNUMBER partition);

/// Path of a picture of that camera, without what its name ends in. Throws.
QString snapShotStem(SimHost& host, DOCKEY key, const QDateTime& time);
