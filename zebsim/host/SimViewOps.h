#pragma once

#include "ZebViewOps.h"

class CameraBank;
class StatusFlags;

/// How images stand in their windows; that of a camera that is gone stands plain.
class SimViewOps : public ZebViewOps {
public:
    SimViewOps(const CameraBank& cameras, const StatusFlags& flags) : m_cameras(cameras), m_flags(flags) {}

    double getRotation(DOCKEY key) const override;
    bool isHorizontalFlip(DOCKEY key) const override;
    bool isVerticalFlip(DOCKEY key) const override;
    double getZoom(DOCKEY key) const override;
    bool isCycleView() const override;

private:
    const CameraBank& m_cameras;
    const StatusFlags& m_flags;
};
