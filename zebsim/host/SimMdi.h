#pragma once

#include "ZebMdi.h"

class CameraBank;
class StatusFlags;

/// The image windows: one for each camera that is connected.
class SimMdi : public ZebMdi {
public:
    SimMdi(const CameraBank& cameras, const StatusFlags& flags) : m_cameras(cameras), m_flags(flags) {}

    int countMdiWindow(bool visible, int kind) const override;

private:
    const CameraBank& m_cameras;
    const StatusFlags& m_flags;
};
