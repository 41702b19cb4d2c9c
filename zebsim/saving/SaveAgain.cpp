#include "SaveAgain.h"

#include <QFileInfo>

#include <algorithm>

namespace {

/// Somebody may have taken away what was written.
int firstMissing(const SaveOrders& orders, const SaveTrack& track, int end) {
    int index = 0;
    while (index < end && QFileInfo(orders.fileOf(track, index)).size() > 0) {
        ++index;
    }
    return index;
}

SaveTrack rest(const SaveOrders& orders, const SaveOutcome& outcome) {
    SaveTrack track = orders.tracks[std::size_t(outcome.track)];
    if (orders.format.isOneFile()) {
        const bool stands = QFileInfo(orders.fileOf(track, track.from)).size() > 0;
        track.least = stands ? std::max(track.least, outcome.saved) : 0;
    }
    track.from = orders.format.isOneFile() ? 0 : firstMissing(orders, track, track.from + outcome.saved);
    return track;
}

}  // namespace

std::vector<SaveTrack> tracksToSaveAgain(const SaveOrders& orders, const QList<SaveOutcome>& outcomes) {
    std::vector<SaveTrack> tracks;
    for (const SaveOutcome& outcome : outcomes) {
        if (outcome.track >= 0 && outcome.end != SaveOutcome::Saved) {
            tracks.push_back(rest(orders, outcome));
        }
    }
    return tracks;
}
