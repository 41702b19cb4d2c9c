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
};
