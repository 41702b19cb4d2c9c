#pragma once

#include "ZebViewOps.h"

class CameraBank;

/// How images stand in their windows; that of a camera that is gone stands plain.
class SimViewOps : public ZebViewOps {
public:
    explicit SimViewOps(const CameraBank& cameras) : m_cameras(cameras) {}

    double getRotation(DOCKEY key) const override;
    bool isHorizontalFlip(DOCKEY key) const override;
    bool isVerticalFlip(DOCKEY key) const override;
    double getZoom(DOCKEY key) const override;

private:
    const CameraBank& m_cameras;
};
