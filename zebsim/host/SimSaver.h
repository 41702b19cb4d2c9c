#pragma once

#include "ZebSaver.h"

class HostCalls;
class HostWindows;
class StatusFlags;

/// Whether images are being saved, and the way to the clipboard.
class SimSaver : public ZebSaver {
public:
    /// The windows may be others from call to call.
    SimSaver(const HostCalls& calls, const StatusFlags& flags, HostWindows* const& windows)
        : m_calls(calls), m_flags(flags), m_windows(windows) {}

    bool isSaving() const override;
    bool isBgSaving() const override;
    bool isBgConverting() const override;
    void copyToClipboard(int what) override;
    void snapShot(int mode) override;

private:
    const HostCalls& m_calls;
    const StatusFlags& m_flags;
    HostWindows* const& m_windows;
};
