#include "StopSource.h"

#include <thread>

namespace {

thread_local const StopSource* carried = nullptr;

}  // namespace

StopSource::Carried::Carried(const StopSource& source) : m_before(carried) {
    carried = &source;
}

StopSource::Carried::~Carried() {
    carried = m_before;
}

void StopSource::stop() {
    const std::lock_guard lock(m_mutex);
    m_stopped = true;
    m_wake.notify_all();
}

bool StopSource::isStopped() const {
    const std::lock_guard lock(m_mutex);
    return m_stopped;
}

void StopSource::sleep(Duration time) {
    if (carried != nullptr) {
        carried->sleepUnlessStopped(time);
    } else {
        std::this_thread::sleep_for(time);
    }
}

void StopSource::sleepUnlessStopped(Duration time) const {
    std::unique_lock lock(m_mutex);
    m_wake.wait_for(lock, time, [this] { return m_stopped; });
}
