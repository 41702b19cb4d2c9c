#include "ParallelRows.h"

#include <omp.h>
#include <algorithm>
#include <chrono>

ParallelRows::ParallelRows(int rows, std::function<void(int)> work, int atOnce)
    : m_work(std::move(work)),
      m_states(std::size_t(rows), State::Waiting),
      m_failures(std::size_t(rows)),
      // The thread that makes a parallel region works in it, so that is none of the owner's.
      m_worker([this, atOnce] { run(atOnce); }) {}

ParallelRows::~ParallelRows() {
    m_worker.join();
}

/// The rows wait for others, not for a core: how many threads there are is not left to the cores or the environment.
void ParallelRows::run(int atOnce) {
    const int rows = int(m_states.size());
    omp_set_dynamic(0);
#pragma omp parallel for schedule(dynamic, 1) num_threads(std::max(1, std::min(rows, atOnce)))
    for (int i = 0; i < rows; ++i) {
        runNext();
    }
    const std::lock_guard lock(m_mutex);
    m_over = true;
    m_end.notify_all();
}

/// Nothing may be thrown out of a parallel region.
void ParallelRows::runNext() {
    const std::optional<std::size_t> next = beginNext();
    if (!next) {
        return;
    }
    const std::size_t row = *next;
    std::exception_ptr failure;
    try {
        m_work(int(row));
    } catch (...) {
        failure = std::current_exception();
    }
    const std::lock_guard lock(m_mutex);
    m_failures[row] = failure;
    m_states[row] = State::Ended;
}

/// In the order of the rows, whatever share of them the region gives to a thread.
std::optional<std::size_t> ParallelRows::beginNext() {
    const std::lock_guard lock(m_mutex);
    const auto waiting = std::find(m_states.begin(), m_states.end(), State::Waiting);
    if (waiting == m_states.end()) {
        return std::nullopt;
    }
    *waiting = State::Running;
    return std::size_t(waiting - m_states.begin());
}

bool ParallelRows::waitFor(int ms) const {
    std::unique_lock lock(m_mutex);
    return m_end.wait_for(lock, std::chrono::milliseconds(ms), [this] { return m_over; });
}

void ParallelRows::leaveOutWaiting() {
    const std::lock_guard lock(m_mutex);
    std::replace(m_states.begin(), m_states.end(), State::Waiting, State::LeftOut);
}

std::exception_ptr ParallelRows::failureOf(int row) const {
    const std::lock_guard lock(m_mutex);
    return m_failures[std::size_t(row)];
}

std::vector<int> ParallelRows::rowsThatAre(std::initializer_list<State> wanted) const {
    const std::lock_guard lock(m_mutex);
    std::vector<int> rows;
    for (std::size_t row = 0; row < m_states.size(); ++row) {
        if (std::find(wanted.begin(), wanted.end(), m_states[row]) != wanted.end()) {
            rows.push_back(int(row));
        }
    }
    return rows;
}
