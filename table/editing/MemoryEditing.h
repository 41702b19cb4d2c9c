#pragma once

#include "ZebTypes.h"

#include <functional>

class DOC_Frames;
class ZebHost;

/// What is to be kept of each camera's recording, and its saving. Memory mode only. GUI thread.
///
/// Frames are counted from each camera's own trigger. A value out of a camera's range becomes the nearest that it can
/// have; the same value for many cameras so comes to each one's own limit. All may throw what host and documents throw,
/// at the first camera that fails: those after it stay as they are.
class MemoryEditing {
public:
    explicit MemoryEditing(ZebHost& host) : m_host(host) {}

    void setSelectStartFrameNo(const DocKeyList& keys, int frameNo);
    void setSelectEndFrameNo(const DocKeyList& keys, int frameNo);
    /// Moves the zero point; 0 puts it back to the camera's own.
    void setTriggerOffset(const DocKeyList& keys, int offset);

    /// Open the host's dialog of saving. The user is asked first when a recording has not been checked.
    void save();
    void saveLayout();

private:
    void setRange(const DocKeyList& keys, const std::function<QPair<int, int>(DOC_Frames&)>& rangeOf);
    bool userTakesUnchecked();

    ZebHost& m_host;
};
