#include "Playback.h"

#include "Recording.h"

#include <algorithm>

int Playback::frame(DOCKEY key, const Recording& recording) const {
    const auto place = m_places.find(key);
    return place == m_places.end() ? recording.selectedFirst
                                   : std::clamp(place->frame, recording.first, recording.last);
}

void Playback::seek(DOCKEY key, int frame) {
    m_places[key] = {frame, 0};
}

void Playback::advance(DOCKEY key, const Recording& recording, qint64 ms) {
    const int start = frame(key, recording);
    Place& place = m_places[key];
    place.part += ms * Speed;
    const qint64 reached = start + place.part / 1000;
    place.part %= 1000;
    // What lies before the frames to keep is played into them.
    place.frame = reached <= recording.selectedLast
                      ? int(reached)
                      : recording.selectedFirst + int((reached - recording.selectedFirst) % recording.selectedCount());
}
