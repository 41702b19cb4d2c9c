#include "ScriptWatchdog.h"

#include <chrono>
#include <utility>

ScriptWatchdog::ScriptWatchdog(int seconds, std::function<void()> expired)
    : m_thread([this, seconds, expired = std::move(expired)] {
          std::unique_lock<std::mutex> lock(m_mutex);
          if (!m_ended.wait_for(lock, std::chrono::seconds(seconds), [this] { return m_end; })) {
              expired();
          }
      }) {}

ScriptWatchdog::~ScriptWatchdog() {
    {
        const std::lock_guard<std::mutex> lock(m_mutex);
        m_end = true;
    }
    m_ended.notify_all();
    m_thread.join();
}
