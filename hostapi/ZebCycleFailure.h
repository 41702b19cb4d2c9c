#pragma once

#include <stdexcept>

/// What an update cycle could not read, a line for each camera or source, each named. It comes when a failure is new
/// and not again until that could be read once more.
///
/// Nobody waits for an answer to it, so a host may show it beside the work that goes on.
class ZebCycleFailure : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
};
