#include "host/SimPlayer.h"

#include "host/Journal.h"

void SimPlayer::pausePlayer() {
    m_journal.record("ZebPlayer::pausePlayer");
    ++m_pauses;
}

void SimPlayer::resumePlayer() {
    m_journal.record("ZebPlayer::resumePlayer");
    m_pauses = qMax(0, m_pauses - 1);
}
