#pragma once

#include "SaveJob.h"

/// What of a save that has ended is to be saved once more, each track from the first of its files that does not stand
/// on the disk; one file of all frames whole. A layout that has lost a camera is none of them: a save of its own takes
/// other names, and what this camera gave before stays.
std::vector<SaveTrack> tracksToSaveAgain(const SaveOrders& orders, const QList<SaveOutcome>& outcomes);
