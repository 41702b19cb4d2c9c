#include "ParallelRows.h"

#include <omp.h>
#include <algorithm>
#include <future>
#include <system_error>

ParallelRows::ParallelRows(int rows, std::function<void(int)> work, int atOnce, std::chrono::milliseconds patience)
    : m_work(std::move(work)),
      m_states(std::size_t(rows), State::Waiting),
      m_failures(std::size_t(rows)),
      // The thread that makes a parallel region works in it, so that is none of the owner's.
      m_worker([this, atOnce, patience] { run(atOnce, patience); }) {}

ParallelRows::~ParallelRows() {
    m_worker.join();
}

/// Rows that answer at once need no threads of their own, which would cost more than they do. The others wait for
/// somebody, not for a core: how many threads there are is not left to the cores or the environment.
void ParallelRows::run(int atOnce, std::chrono::milliseconds patience) {
    const auto takeRows = [this] {
        while (runNext()) {
        }
    };
    {
        std::future<void> first;
        if (patience.count() > 0) {
            try {
                first = std::async(std::launch::async, takeRows);
                first.wait_for(patience);
            } catch (const std::system_error&) {  // there are too many threads; the region makes do with what it gets
            }
        }
        const int others = std::min(int(waiting().size()), first.valid() ? atOnce - 1 : atOnce);
        if (others > 0) {
            omp_set_dynamic(0);
#pragma omp parallel num_threads(others)
            takeRows();
        }
    }
    const std::lock_guard lock(m_mutex);
    m_over = true;
    m_end.notify_all();
}

/// Nothing may be thrown out of a parallel region.
bool ParallelRows::runNext() {
    const std::optional<std::size_t> next = beginNext();
    if (!next) {
        return false;
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
    return true;
}

/// In the order of the rows, whatever thread takes them.
std::optional<std::size_t> ParallelRows::beginNext() {
    const std::lock_guard lock(m_mutex);
    const auto waiting = std::find(m_states.begin() + m_begun, m_states.end(), State::Waiting);
    if (waiting == m_states.end()) {
        return std::nullopt;
    }
    *waiting = State::Running;
    m_begun = waiting - m_states.begin();
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
