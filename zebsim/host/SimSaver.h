#pragma once

#include "ZebSaver.h"

#include <functional>

class AppDesk;
class HostCalls;
class StatusFlags;

/// Whether images are being saved, and the way to the clipboard.
class SimSaver : public ZebSaver {
public:
    /// `desk` answers the application's windows, null without an application.
    SimSaver(const HostCalls& calls, const StatusFlags& flags, std::function<AppDesk*()> desk);

    bool isSaving() const override;
    bool isBgSaving() const override;
    bool isBgConverting() const override;
    void copyToClipboard(int what) override;
    void snapShot(int mode) override;

private:
    const HostCalls& m_calls;
    const StatusFlags& m_flags;
    const std::function<AppDesk*()> m_desk;
};
