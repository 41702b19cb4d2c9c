#include "SimPlayer.h"

#include "HostCalls.h"

void SimPlayer::pausePlayer() {
    m_calls.note("ZebPlayer::pausePlayer");
    ++m_pauses;
}

void SimPlayer::resumePlayer() {
    m_calls.note("ZebPlayer::resumePlayer");
    m_pauses = qMax(0, m_pauses - 1);
}
