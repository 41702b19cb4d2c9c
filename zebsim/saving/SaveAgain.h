#pragma once

#include "SaveJob.h"

/// What of a save that has ended is to be saved once more, each track from the first of its files that does not stand
/// on the disk; one file of all frames, and a layout that has lost a camera, whole.
std::vector<SaveTrack> tracksToSaveAgain(const SaveOrders& orders, const QList<SaveOutcome>& outcomes);
