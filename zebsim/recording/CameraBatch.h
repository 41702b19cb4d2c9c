#pragma once

#include "CameraBank.h"

#include <QString>

#include <functional>
#include <vector>

/// What a camera has said to a command.
struct CameraAnswer {
    /// What was wrong, with the camera's name; empty when it has done it.
    QString reason;
    /// The user has left it out before the command reached it, so that it is as it was.
    bool isLeftOut = false;
};

/// Gives many cameras a command at once. GUI thread.
class CameraBatch {
public:
    virtual ~CameraBatch() = default;

    /// `command` runs side by side, each on a thread of its own but under a stepped clock. Answers for each, in their
    /// order. It may run an event loop: cameras may go meanwhile, and the rig with them.
    virtual std::vector<CameraAnswer> run(const HeldCameras& cameras, const std::function<void(Camera&)>& command) = 0;
};
