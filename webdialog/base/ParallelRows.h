#pragma once

#include <chrono>
#include <condition_variable>
#include <cstddef>
#include <exception>
#include <functional>
#include <initializer_list>
#include <mutex>
#include <optional>
#include <thread>
#include <vector>

/// Work on many rows side by side, so that it takes as long as the slowest row: for commands that wait for a network.
/// It begins at once and leaves the waiting to its owner. Any thread.
class ParallelRows {
public:
    static constexpr int MostAtOnce = 128;

    /// `work` gets the number of each of `rows` rows, counted from 0, on another thread; at most `atOnce` of them run
    /// at a time, and begin in their order. What it throws is kept by row. With `patience` one thread takes the rows in
    /// turn for so long before the others come, which are spared where all rows answer at once.
    ParallelRows(int rows, std::function<void(int row)> work, int atOnce = MostAtOnce,
                 std::chrono::milliseconds patience = {});
    /// Waits for the rows that were not left out.
    ~ParallelRows();
    ParallelRows(const ParallelRows&) = delete;
    ParallelRows& operator=(const ParallelRows&) = delete;

    /// Waits for the last row, up to `ms` milliseconds; whether all have ended.
    bool waitFor(int ms) const;
    /// Rows that have not begun are left out from now on.
    void leaveOutWaiting();
    /// In their order: rows that have not begun, those without an end among which they are, those left out.
    std::vector<int> waiting() const { return rowsThatAre({State::Waiting}); }
    std::vector<int> unfinished() const { return rowsThatAre({State::Waiting, State::Running}); }
    std::vector<int> leftOut() const { return rowsThatAre({State::LeftOut}); }
    /// What a row has thrown; null for nothing, or nothing yet.
    std::exception_ptr failureOf(int row) const;

private:
    enum class State { Waiting, Running, Ended, LeftOut };

    void run(int atOnce, std::chrono::milliseconds patience);
    /// False when there was none left.
    bool runNext();
    std::optional<std::size_t> beginNext();
    std::vector<int> rowsThatAre(std::initializer_list<State> wanted) const;

    const std::function<void(int)> m_work;
    mutable std::mutex m_mutex;
    mutable std::condition_variable m_end;
    std::vector<State> m_states;
    /// No row before this one waits.
    std::ptrdiff_t m_begun = 0;
    std::vector<std::exception_ptr> m_failures;
    bool m_over = false;
    std::thread m_worker;
};
