#pragma once

/// The player of recorded images. GUI thread.
class ZebPlayer {
public:
    virtual ~ZebPlayer() = default;

    /// Between pause and resume the player touches no document. Calls nest. Do not throw.
    virtual void pausePlayer() = 0;
    virtual void resumePlayer() = 0;
};
