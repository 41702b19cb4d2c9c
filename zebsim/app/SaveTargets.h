#pragma once

#include "SavePlan.h"

#include <QDateTime>
#include <QHash>
#include <QVariant>

#include <vector>

class SimHost;

/// Preferences as a dialog shows them, which it has not stored yet, by their keys.
using TypedPrefs = QHash<QString, QVariant>;

/// What the track's files are written for.
zeb::FileType fileType(const SaveTrack& track);

/// Where each of `tracks` goes, in `plan`, and the plan for all of them: `typed` comes before the preferences. A camera
/// that does not tell what its names need is left out. The names are promised by the save that began last. GUI thread.
SavePlan composePlan(SimHost& host, const std::vector<SaveTrack>& tracks, const QStringList& absent,
                     const TypedPrefs& typed, const QDateTime& time);

/// Path of the first file of each track; a text in the user's language says why there is none. Nothing is promised.
QStringList composedPaths(SimHost& host, const std::vector<SaveTrack>& tracks, const TypedPrefs& typed,
                          const QDateTime& time);

/// Path of a picture of that camera, without what its name ends in. Throws.
QString snapShotStem(SimHost& host, DOCKEY key, const QDateTime& time);
