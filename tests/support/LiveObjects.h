#pragma once

#include <ostream>

/// Everything that a plug-in could leave behind in the process.
struct Leftovers {
    /// `QObject`s of all kinds, the `QTimer`s among them, and threads. Objects are counted from the first `now` on.
    int objects = 0;
    int timers = 0;
    int threads = 0;

    /// As things stand when all that was to be deleted later is gone.
    static Leftovers now();
};

/// Timers with this interval, in milliseconds, that run; of those made since the first `Leftovers::now`.
int activeTimers(int interval);

void PrintTo(const Leftovers& leftovers, std::ostream* out);
