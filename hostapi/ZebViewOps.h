#pragma once

#include "ZebTypes.h"

/// How images stand in their windows: flipped first, then turned clockwise. GUI thread; nothing here throws.
class ZebViewOps {
public:
    virtual ~ZebViewOps() = default;

    /// Rotation as a fraction of a full turn: 0, 0.25, 0.5 or 0.75.
    virtual double getRotation(DOCKEY key) const = 0;
    virtual bool isHorizontalFlip(DOCKEY key) const = 0;
    virtual bool isVerticalFlip(DOCKEY key) const = 0;
    /// Window pixels per image pixel, above 0.
    virtual double getZoom(DOCKEY key) const = 0;
    /// Whether the views take turns by themselves.
    virtual bool isCycleView() const = 0;
};
