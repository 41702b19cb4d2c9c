#pragma once

#include "ZebTypes.h"

/// Operations on many cameras at once. GUI thread.
///
/// Each call goes to every camera of its list. Those that fail do not keep it from the others; they are
/// gathered, and one exception at the end names each camera with its reason.
class ZebCameraOps {
public:
    virtual ~ZebCameraOps() = default;

    /// Sets the record rate, in frames a second.
    virtual void setRecordRate(const DocList& docs, unsigned int rate) = 0;
};
