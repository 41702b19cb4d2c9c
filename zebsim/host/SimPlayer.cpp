#include "host/SimPlayer.h"

#include "host/Journal.h"

void SimPlayer::pausePlayer() {
    m_journal.record("ZebPlayer::pausePlayer");
}

void SimPlayer::resumePlayer() {
    m_journal.record("ZebPlayer::resumePlayer");
}
