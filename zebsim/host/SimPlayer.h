#pragma once

#include "ZebPlayer.h"

class HostCalls;

/// The player of recorded images.
class SimPlayer : public ZebPlayer {
public:
    explicit SimPlayer(const HostCalls& calls) : m_calls(calls) {}

    void pausePlayer() override;
    void resumePlayer() override;
    bool isPaused() const { return m_pauses > 0; }

private:
    const HostCalls& m_calls;
    int m_pauses = 0;
};
