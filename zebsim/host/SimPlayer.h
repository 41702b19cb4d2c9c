#pragma once

#include "ZebPlayer.h"

class Journal;

/// The player of recorded images.
class SimPlayer : public ZebPlayer {
public:
    explicit SimPlayer(Journal& journal) : m_journal(journal) {}

    void pausePlayer() override;
    void resumePlayer() override;
    bool isPaused() const { return m_pauses > 0; }

private:
    Journal& m_journal;
    int m_pauses = 0;
};
