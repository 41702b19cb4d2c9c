#pragma once

#include <QImage>

class Camera;

/// What a sensor adds to what it sees.
struct SensorNoise {
    /// How far one pixel in eight strays from what it should be, in levels of 255.
    int grain = 0;
    /// Pixels that stand at full brightness, always the same ones.
    int hotPixels = 0;
    /// Which sensor it is.
    unsigned int sensor = 0;

    static SensorNoise of(const Camera& camera);
    bool operator==(const SensorNoise& other) const {
        return grain == other.grain && hotPixels == other.hotPixels && sensor == other.sensor;
    }

    /// On a picture of the format RGB32, which shows a frame of that resolution. The same frame has the same noise. Any
    /// thread.
    void addTo(QImage& picture, const QSize& resolution, qint64 frame) const;
};
