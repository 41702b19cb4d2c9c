#pragma once

#include <chrono>
#include <condition_variable>
#include <mutex>

/// Ends what threads are at, and at once the waits of those that carry it. Any thread.
class StopSource {
public:
    using Duration = std::chrono::duration<double, std::milli>;

    void stop();
    bool isStopped() const;

    /// While one lives, its thread carries the source, which must outlive it.
    class Carried {
    public:
        explicit Carried(const StopSource& source);
        ~Carried();
        Carried(const Carried&) = delete;
        Carried& operator=(const Carried&) = delete;

    private:
        const StopSource* const m_before;
    };
    /// Sleeps so long; less when what the calling thread carries is stopped meanwhile, or is so already.
    static void sleep(Duration time);

private:
    void sleepUnlessStopped(Duration time) const;

    mutable std::mutex m_mutex;
    mutable std::condition_variable m_wake;
    bool m_stopped = false;
};
