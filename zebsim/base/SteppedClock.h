#pragma once

#include "Clock.h"

#include <map>
#include <mutex>
#include <thread>
#include <utility>

/// Time that a test moves. A wait is booked, not slept: each thread adds up its own. Any thread.
class SteppedClock : public Clock {
public:
    /// The common time, and what the calling thread has booked.
    qint64 now() const override;
    void wait(qint64 ms) override;
    bool isStepped() const override { return true; }
    void beginRow() override;
    void endRows() override;

    /// Moves the common time on.
    void advance(qint64 ms);
    /// Moves the common time by the largest of the bookings, drops them all, and answers it.
    qint64 join();

private:
    mutable std::mutex m_mutex;
    qint64 m_time = 0;
    std::map<std::thread::id, qint64> m_booked;
    /// Of the rows under way, by thread: what was booked before them, and by the longest so far.
    std::map<std::thread::id, std::pair<qint64, qint64>> m_rows;
};
