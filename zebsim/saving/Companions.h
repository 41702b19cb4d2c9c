#pragma once

#include <QStringList>

struct SaveOrders;
struct SaveTrack;

/// Files that stand beside those of a track, one of a kind. Any thread.

/// Paths of the small picture and of the information file; empty when none is wanted.
QString thumbnailOf(const SaveOrders& orders, const SaveTrack& track);
QString informationFileOf(const SaveOrders& orders, const SaveTrack& track);
/// Of all that are wanted.
QStringList companionsOf(const SaveOrders& orders, const SaveTrack& track);

/// Writes them for the first `saved` frames of the track, which stand in files; none when there are none. Throws
/// `FileError`.
void writeCompanions(const SaveOrders& orders, const SaveTrack& track, int saved);
