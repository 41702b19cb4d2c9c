#pragma once

#include <QJsonObject>

/// What a frame of 1,024 x 1,024 with the effect of an image plug-in takes, and one without. Any thread.
class EffectBench {
public:
    /// Milliseconds, by the names of the plug-ins, of which `filter` sharpens, and as `median` and `plain`.
    static QJsonObject run();
};
