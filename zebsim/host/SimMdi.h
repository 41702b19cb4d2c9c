#pragma once

#include "ZebMdi.h"

class CameraBank;
class SimAppStatus;
class StatusFlags;

/// The image windows: one for each camera that is connected, none in file mode. None of them is ever hidden.
class SimMdi : public ZebMdi {
public:
    SimMdi(const CameraBank& cameras, const SimAppStatus& appStatus, const StatusFlags& flags)
        : m_cameras(cameras), m_appStatus(appStatus), m_flags(flags) {}

    /// Every window is visible and holds an image, so neither argument makes a difference.
    int countMdiWindow(bool visible, int kind) const override;

private:
    const CameraBank& m_cameras;
    const SimAppStatus& m_appStatus;
    const StatusFlags& m_flags;
};
