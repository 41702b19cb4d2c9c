#include "ClockRows.h"

#include "Clock.h"
#include "ParallelRows.h"

#include <limits>

std::vector<std::exception_ptr> runRows(Clock& clock, int rows, const std::function<void(int)>& work) {
    // One row waits for no other.
    if (clock.isStepped() || rows == 1) {
        return runSteppedRows(clock, rows, work);
    }
    const ParallelRows running(rows, work);
    while (!running.waitFor(std::numeric_limits<int>::max())) {
    }
    std::vector<std::exception_ptr> failures;
    failures.reserve(std::size_t(rows));
    for (int row = 0; row < rows; ++row) {
        failures.push_back(running.failureOf(row));
    }
    return failures;
}

std::vector<std::exception_ptr> runSteppedRows(Clock& clock, int rows, const std::function<void(int)>& work) {
    std::vector<std::exception_ptr> failures(std::size_t(rows), nullptr);
    for (int row = 0; row < rows; ++row) {
        clock.beginRow();
        try {
            work(row);
        } catch (...) {
            failures[std::size_t(row)] = std::current_exception();
        }
    }
    clock.endRows();
    return failures;
}
