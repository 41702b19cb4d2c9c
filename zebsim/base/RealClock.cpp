#include "RealClock.h"

#include "StopSource.h"

RealClock::RealClock() {
    m_timer.start();
}

double RealClock::nowLocked() const {
    return m_base + static_cast<double>(m_timer.elapsed() - m_since) * m_speed;
}

qint64 RealClock::now() const {
    const std::lock_guard lock(m_mutex);
    return static_cast<qint64>(nowLocked());
}

void RealClock::wait(qint64 ms) {
    if (ms > 0) {
        StopSource::sleep(StopSource::Duration(static_cast<double>(ms) / speed()));
    }
}

void RealClock::setSpeed(double factor) {
    const std::lock_guard lock(m_mutex);
    m_base = nowLocked();
    m_since = m_timer.elapsed();
    m_speed = factor;
}

double RealClock::speed() const {
    const std::lock_guard lock(m_mutex);
    return m_speed;
}
