#pragma once

#include <exception>
#include <functional>
#include <vector>

class Clock;

/// Work on rows that wait by the clock, each for itself, so that it takes as long as the slowest row. `work` gets the
/// number of each row, counted from 0. Answers what each row has thrown, null for nothing. Any thread.
std::vector<std::exception_ptr> runRows(Clock& clock, int rows, const std::function<void(int)>& work);

/// The same under a stepped clock, on the calling thread.
std::vector<std::exception_ptr> runSteppedRows(Clock& clock, int rows, const std::function<void(int)>& work);
