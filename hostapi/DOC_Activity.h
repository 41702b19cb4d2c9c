#pragma once

/// What a document is busy with. GUI thread.
class DOC_Activity {
public:
    virtual ~DOC_Activity() = default;

    /// Whether the choice between live speed and quality is suspended.
    virtual bool isSuspendReduce() const = 0;
    /// Whether its live images are frozen.
    virtual bool isStopLive() const = 0;
    /// Takes one new live image while the live loop is paused.
    virtual void refresh(bool force) = 0;
};
