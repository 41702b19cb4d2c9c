#pragma once

#include "ZebTypes.h"

#include <QHash>

struct Recording;

/// Which recorded frame of each camera is shown. GUI thread.
class Playback {
public:
    /// Recorded frames that a camera shows in a second while it plays.
    static constexpr int Speed = 30;

    /// Number of a frame in the memory, inside the recording; the first to keep of a camera that nobody touched.
    int frame(DOCKEY key, const Recording& recording) const;
    void seek(DOCKEY key, int frame);
    /// Plays on for `ms` milliseconds. The frames to keep are gone through, and begin again at their end.
    void advance(DOCKEY key, const Recording& recording, qint64 ms);
    /// Forgets where the cameras stood.
    void reset() { m_places.clear(); }

private:
    struct Place {
        int frame = 0;
        /// Of the next frame, in thousandths.
        qint64 part = 0;
    };

    QHash<DOCKEY, Place> m_places;
};
