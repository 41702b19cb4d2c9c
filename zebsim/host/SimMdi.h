#pragma once

#include "ZebMdi.h"

#include <functional>

class CameraBank;
class StatusFlags;

/// The image windows. A host without an application counts one for each camera that is connected.
class SimMdi : public ZebMdi {
public:
    /// Number of windows, or of those that are visible.
    using Counter = std::function<int(bool visible)>;

    SimMdi(const CameraBank& cameras, const StatusFlags& flags) : m_cameras(cameras), m_flags(flags) {}

    /// Who has the windows; an empty function for nobody.
    void setCounter(Counter counter) { m_counter = std::move(counter); }

    /// Every window holds an image, so `kind` makes no difference.
    int countMdiWindow(bool visible, int kind) const override;

private:
    const CameraBank& m_cameras;
    const StatusFlags& m_flags;
    Counter m_counter;
};
