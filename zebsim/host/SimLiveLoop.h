#pragma once

#include "ZebLiveLoop.h"

class CameraBank;
class HostEvents;
class Journal;

/// Whether the live images run.
class SimLiveLoop : public ZebLiveLoop {
public:
    SimLiveLoop(Journal& journal, CameraBank& cameras, HostEvents& events)
        : m_journal(journal), m_cameras(cameras), m_events(events) {}

    void pauseLive(int mode) override;
    void resumeLive() override;
    bool isLivePaused() const override { return m_pauses > 0; }
    void restartLive(int mode, int reload, int keepView) override;
    void restartLiveAfterTool(int mode) override;
    void restartLiveAfterEnd(int mode) override;
    void setStopLive(bool stop, int mode) override;
    void updateLive() override;

private:
    Journal& m_journal;
    CameraBank& m_cameras;
    HostEvents& m_events;
    int m_pauses = 0;
};
