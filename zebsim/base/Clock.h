#pragma once

#include <QtGlobal>

/// The host's time, in milliseconds since the clock was made. Any thread.
class Clock {
public:
    virtual ~Clock() = default;

    virtual qint64 now() const = 0;
    /// Lets `ms` pass for the calling thread; 0 and below does nothing.
    virtual void wait(qint64 ms) = 0;

    /// Whether time stands still between steps. Work that is to wait side by side then runs on one thread, a row after
    /// the other: `beginRow` before each, `endRows` after the last, and what passes is what the longest row has waited.
    virtual bool isStepped() const { return false; }
    virtual void beginRow() {}
    virtual void endRows() {}
};
