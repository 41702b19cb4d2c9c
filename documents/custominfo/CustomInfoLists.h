#pragma once

#include <functional>

class DOC_Control;

/// Replaces the list of a camera by what `fill` adds to an empty one. When that throws the camera gets back the list it
/// had, as far as it takes it, and the exception goes on. One whose list can't be read keeps it. GUI thread.
void replaceCustomInfo(DOC_Control& control, const std::function<void()>& fill);
