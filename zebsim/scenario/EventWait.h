#pragma once

#include <functional>

/// Runs the event loop until `done`, looking again every few milliseconds. Returns at once when it already is.
/// False when `givenUp` came first or the application quits. What either of them throws comes out of here.
bool waitUntil(const std::function<bool()>& done, const std::function<bool()>& givenUp);

/// Runs the event loop for so many milliseconds of real time.
void letPass(int ms, const std::function<bool()>& givenUp);
