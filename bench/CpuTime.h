#pragma once

#include <ctime>

/// Milliseconds of processor time that this process has used, with their parts. What else runs on the machine does not
/// count in.
inline double cpuTime() {
    timespec time{};
    clock_gettime(CLOCK_PROCESS_CPUTIME_ID, &time);
    return double(time.tv_sec) * 1e3 + double(time.tv_nsec) / 1e6;
}
