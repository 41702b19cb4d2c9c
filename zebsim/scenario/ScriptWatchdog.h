#pragma once

#include <condition_variable>
#include <functional>
#include <mutex>
#include <thread>

/// Calls a function when a script has run for too long. Counts on a thread of its own, since a script that
/// never returns also stops the event loop.
class ScriptWatchdog {
public:
    /// `expired` is called once, on the watchdog's thread.
    ScriptWatchdog(int seconds, std::function<void()> expired);
    ~ScriptWatchdog();

    ScriptWatchdog(const ScriptWatchdog&) = delete;
    ScriptWatchdog& operator=(const ScriptWatchdog&) = delete;

private:
    std::mutex m_mutex;
    std::condition_variable m_ended;
    bool m_end = false;
    std::thread m_thread;
};
