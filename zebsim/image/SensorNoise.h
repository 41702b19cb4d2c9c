#pragma once

#include <QImage>

/// What a sensor adds to what it sees.
struct SensorNoise {
    /// How far a pixel strays from what it should be, in levels of 255.
    int grain = 0;
    /// Pixels that stand at full brightness, always the same ones.
    int hotPixels = 0;

    bool operator==(const SensorNoise& other) const { return grain == other.grain && hotPixels == other.hotPixels; }

    /// On a picture of the format RGB32, of a frame of that resolution. `sensor` and `frame` tell which: the same two make
    /// the same noise. Any thread.
    void addTo(QImage& picture, const QSize& resolution, unsigned int sensor, qint64 frame) const;
};
