#pragma once

/// The loop that fetches live images. GUI thread.
class ZebLiveLoop {
public:
    virtual ~ZebLiveLoop() = default;

    /// Between pause and resume the loop touches no document. Calls nest. Do not throw.
    virtual void pauseLive(int mode) = 0;
    virtual void resumeLive() = 0;
    virtual bool isLivePaused() const = 0;

    /// Restarts the loop with what has changed on the documents, left paused as by `pauseLive`.
    virtual void restartLive(int mode, int reload, int keepView) = 0;
    virtual void restartLiveAfterTool(int mode) = 0;
    virtual void restartLiveAfterEnd(int mode) = 0;

    /// Freezes the live images, or lets them run again. `mode` is the host's.
    virtual void setStopLive(bool stop, int mode) = 0;
    /// Takes one new live image of each camera while they are frozen.
    virtual void updateLive() = 0;
};
