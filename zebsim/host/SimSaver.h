#pragma once

#include "ZebSaver.h"

struct HostContext;

/// Whether images are being saved, and the way to the clipboard.
class SimSaver : public ZebSaver {
public:
    explicit SimSaver(const HostContext& host) : m_host(host) {}

    bool isSaving() const override;
    bool isBgSaving() const override;
    bool isBgConverting() const override;
    void copyToClipboard(int what) override;
    void snapShot(int mode) override;

private:
    const HostContext& m_host;
};
