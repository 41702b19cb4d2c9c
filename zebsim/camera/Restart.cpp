#include "Restart.h"

#include <utility>

void Restart::setMarked(bool marked) {
    const std::lock_guard lock(m_mutex);
    m_marked = marked;
}

void Restart::request() {
    const std::lock_guard lock(m_mutex);
    m_state = State::Requested;
}

bool Restart::isRequested() const {
    const std::lock_guard lock(m_mutex);
    return m_state == State::Requested;
}

void Restart::begin(qint64 back, bool comesBack) {
    const std::lock_guard lock(m_mutex);
    m_state = State::Away;
    m_back = back;
    m_comesBack = comesBack;
}

bool Restart::isAway() const {
    const std::lock_guard lock(m_mutex);
    return m_state == State::Away || m_state == State::Lost;
}

bool Restart::isLost() const {
    const std::lock_guard lock(m_mutex);
    return m_state == State::Lost;
}

Restart::End Restart::endBy(qint64 now) {
    const std::lock_guard lock(m_mutex);
    if (m_state != State::Away || now < m_back) {
        return End::None;
    }
    m_state = m_comesBack ? State::None : State::Lost;
    const bool wasMarked = std::exchange(m_marked, false);
    if (!m_comesBack) {
        return End::StaysAway;
    }
    return wasMarked ? End::BackAsMarked : End::Back;
}
