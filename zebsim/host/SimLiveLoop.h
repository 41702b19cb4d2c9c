#pragma once

#include "ZebLiveLoop.h"

class Journal;

/// Whether the live images run.
class SimLiveLoop : public ZebLiveLoop {
public:
    explicit SimLiveLoop(Journal& journal) : m_journal(journal) {}

    void pauseLive(int mode) override;
    void resumeLive() override;
    bool isLivePaused() const override { return m_pauses > 0; }
    void restartLive(int mode, int reload, int keepView) override;
    void restartLiveAfterTool(int mode) override;
    void restartLiveAfterEnd(int mode) override;

private:
    Journal& m_journal;
    int m_pauses = 0;
};
