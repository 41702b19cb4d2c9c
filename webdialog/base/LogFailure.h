#pragma once

/// Writes the exception that is being handled to the log. Only inside a `catch`.
void logCurrentFailure() noexcept;

/// Runs `work`; an exception becomes a line of the log and goes no further. For what no caller can be told.
template <typename Work>
void logFailure(Work&& work) noexcept {
    try {
        work();
    } catch (...) {
        logCurrentFailure();
    }
}
