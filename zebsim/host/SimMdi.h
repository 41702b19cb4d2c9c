#pragma once

#include "ZebMdi.h"

class CameraBank;
class StatusFlags;

/// The image windows: one for each camera that is connected, in file mode for each recording that is open. None of them
/// is ever hidden.
class SimMdi : public ZebMdi {
public:
    SimMdi(const CameraBank& cameras, const StatusFlags& flags) : m_cameras(cameras), m_flags(flags) {}

    /// Every window is visible and holds an image, so neither argument makes a difference.
    int countMdiWindow(bool visible, int kind) const override;

private:
    const CameraBank& m_cameras;
    const StatusFlags& m_flags;
};
