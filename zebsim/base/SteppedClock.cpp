#include "SteppedClock.h"

#include <algorithm>

qint64 SteppedClock::now() const {
    const std::lock_guard lock(m_mutex);
    const auto booked = m_booked.find(std::this_thread::get_id());
    return m_time + (booked == m_booked.end() ? 0 : booked->second);
}

void SteppedClock::wait(qint64 ms) {
    if (ms > 0) {
        const std::lock_guard lock(m_mutex);
        m_booked[std::this_thread::get_id()] += ms;
    }
}

void SteppedClock::beginRow() {
    const std::lock_guard lock(m_mutex);
    qint64& booked = m_booked[std::this_thread::get_id()];
    auto& [before, longest] = m_rows.try_emplace(std::this_thread::get_id(), booked, booked).first->second;
    longest = std::max(longest, booked);
    booked = before;
}

void SteppedClock::endRows() {
    beginRow();
    const std::lock_guard lock(m_mutex);
    m_booked[std::this_thread::get_id()] = m_rows.at(std::this_thread::get_id()).second;
    m_rows.erase(std::this_thread::get_id());
}

void SteppedClock::advance(qint64 ms) {
    const std::lock_guard lock(m_mutex);
    m_time += ms;
}

qint64 SteppedClock::join() {
    const std::lock_guard lock(m_mutex);
    qint64 largest = 0;
    for (const auto& [thread, ms] : m_booked) {
        largest = std::max(largest, ms);
    }
    m_time += largest;
    m_booked.clear();
    return largest;
}
