#include "ScriptWatchdog.h"

#include <chrono>
#include <utility>

ScriptWatchdog::ScriptWatchdog(int seconds, std::function<void()> expired)
    : thread([this, seconds, expired = std::move(expired)] {
          std::unique_lock<std::mutex> lock(mutex);
          if (!ended.wait_for(lock, std::chrono::seconds(seconds), [this] { return end; })) expired();
      }) {}

ScriptWatchdog::~ScriptWatchdog() {
    {
        const std::lock_guard<std::mutex> lock(mutex);
        end = true;
    }
    ended.notify_all();
    thread.join();
}
