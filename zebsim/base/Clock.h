#pragma once

#include <QtGlobal>

/// The host's time, in milliseconds since the clock was made. Any thread.
class Clock {
public:
    virtual ~Clock() = default;

    virtual qint64 now() const = 0;
    /// Lets `ms` pass for the calling thread; 0 and below does nothing.
    virtual void wait(qint64 ms) = 0;
};
