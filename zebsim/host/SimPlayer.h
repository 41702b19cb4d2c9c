#pragma once

#include "ZebPlayer.h"

class Journal;

/// The player of recorded images. There are none to play: what is asked of it stands in the journal.
class SimPlayer : public ZebPlayer {
public:
    explicit SimPlayer(Journal& journal) : m_journal(journal) {}

    void pausePlayer() override;
    void resumePlayer() override;

private:
    Journal& m_journal;
};
