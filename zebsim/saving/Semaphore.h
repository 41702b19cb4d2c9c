#pragma once

#include <chrono>
#include <condition_variable>
#include <memory>
#include <mutex>

/// So many permits, each for one at a time. Any thread.
class Semaphore {
public:
    explicit Semaphore(int permits) : m_free(permits) {}

    struct Release {
        void operator()(Semaphore* semaphore) const { semaphore->release(); }
    };
    /// Held until it is destroyed. The semaphore must outlive it.
    using Permit = std::unique_ptr<Semaphore, Release>;

    /// Waits for a free permit; null when it is closed.
    Permit acquire() {
        std::unique_lock lock(m_mutex);
        m_change.wait(lock, [this] { return m_free > 0 || m_closed; });
        if (m_closed) {
            return {};
        }
        --m_free;
        return Permit(this);
    }
    /// Waits that long at most; null when none has become free, or when it is closed.
    Permit acquireFor(std::chrono::milliseconds time) {
        std::unique_lock lock(m_mutex);
        if (!m_change.wait_for(lock, time, [this] { return m_free > 0 || m_closed; }) || m_closed) {
            return {};
        }
        --m_free;
        return Permit(this);
    }
    /// Nobody gets a permit any more.
    void close() {
        const std::lock_guard lock(m_mutex);
        m_closed = true;
        m_change.notify_all();
    }

private:
    void release() {
        const std::lock_guard lock(m_mutex);
        ++m_free;
        m_change.notify_one();
    }

    std::mutex m_mutex;
    std::condition_variable m_change;
    int m_free;
    bool m_closed = false;
};
