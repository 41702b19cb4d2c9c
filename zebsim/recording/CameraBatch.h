#pragma once

#include "CameraBank.h"

#include <QStringList>

/// Gives many cameras a command at once. GUI thread.
class CameraBatch {
public:
    virtual ~CameraBatch() = default;

    /// `command` runs side by side, each on a thread of its own but under a stepped clock. Answers what was wrong with
    /// each, in their order: empty for one that has done it. It may run an event loop: cameras may go meanwhile, and
    /// the rig with them.
    virtual QStringList run(const HeldCameras& cameras, const std::function<void(Camera&)>& command) = 0;
};
