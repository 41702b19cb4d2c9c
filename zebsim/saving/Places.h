#pragma once

#include <condition_variable>
#include <memory>
#include <mutex>

/// So many places, each for one at a time. Any thread.
class Places {
public:
    explicit Places(int count) : m_free(count) {}

    struct Back {
        void operator()(Places* places) const { places->giveBack(); }
    };
    /// A place that is taken until it is destroyed. The places must outlive it.
    using Taken = std::unique_ptr<Places, Back>;

    /// Waits for a free place; null when they are closed.
    Taken take() {
        std::unique_lock lock(m_mutex);
        m_change.wait(lock, [this] { return m_free > 0 || m_closed; });
        if (m_closed) {
            return {};
        }
        --m_free;
        return Taken(this);
    }
    /// Nobody gets a place any more.
    void close() {
        const std::lock_guard lock(m_mutex);
        m_closed = true;
        m_change.notify_all();
    }

private:
    void giveBack() {
        const std::lock_guard lock(m_mutex);
        ++m_free;
        m_change.notify_one();
    }

    std::mutex m_mutex;
    std::condition_variable m_change;
    int m_free;
    bool m_closed = false;
};
