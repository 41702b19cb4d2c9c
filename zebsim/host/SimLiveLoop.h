#pragma once

#include "ZebLiveLoop.h"

class CameraBank;
class HostEvents;
class HostCalls;

/// Whether the live images run.
class SimLiveLoop : public ZebLiveLoop {
public:
    SimLiveLoop(const HostCalls& calls, CameraBank& cameras, HostEvents& events)
        : m_calls(calls), m_cameras(cameras), m_events(events) {}

    void pauseLive(int mode) override;
    void resumeLive() override;
    bool isLivePaused() const override { return m_pauses > 0; }
    void restartLive(int mode, int reload, int keepView) override;
    void restartLiveAfterTool(int mode) override;
    void restartLiveAfterEnd(int mode) override;
    void setStopLive(bool stop, int mode) override;
    void updateLive() override;

private:
    const HostCalls& m_calls;
    CameraBank& m_cameras;
    HostEvents& m_events;
    int m_pauses = 0;
};
