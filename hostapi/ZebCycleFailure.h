#pragma once

#include <stdexcept>

/// What has failed beside the work that goes on, a line for each camera or source: what an update cycle could not read,
/// once when it is new, and settings that an arming could not make on a camera.
///
/// Nobody waits for an answer to it, so a host may show it in a way that keeps nobody from working. It stands in the
/// log.
class ZebCycleFailure : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
};
