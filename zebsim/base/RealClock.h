#pragma once

#include "Clock.h"

#include <QElapsedTimer>

#include <mutex>

/// Time as it passes, times a factor. `wait` sleeps, until the thread's `StopSource` is stopped. Any thread.
class RealClock : public Clock {
public:
    RealClock();

    qint64 now() const override;
    void wait(qint64 ms) override;

    /// The clock runs `factor` times as fast from now on; 1 at first, must be above 0.
    void setSpeed(double factor);
    double speed() const;

private:
    double nowLocked() const;

    mutable std::mutex m_mutex;
    QElapsedTimer m_timer;
    double m_base = 0;
    qint64 m_since = 0;
    double m_speed = 1;
};
