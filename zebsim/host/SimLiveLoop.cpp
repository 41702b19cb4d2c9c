#include "host/SimLiveLoop.h"

#include "camera/Camera.h"
#include "host/CameraBank.h"
#include "host/HostEvents.h"
#include "host/Journal.h"

void SimLiveLoop::pauseLive(int mode) {
    m_journal.record("ZebLiveLoop::pauseLive", {mode});
    ++m_pauses;
}

void SimLiveLoop::resumeLive() {
    m_journal.record("ZebLiveLoop::resumeLive");
    m_pauses = qMax(0, m_pauses - 1);
}

void SimLiveLoop::restartLive(int mode, int reload, int keepView) {
    m_journal.record("ZebLiveLoop::restartLive", {mode, reload, keepView});
    ++m_pauses;
}

void SimLiveLoop::restartLiveAfterTool(int mode) {
    m_journal.record("ZebLiveLoop::restartLiveAfterTool", {mode});
}

void SimLiveLoop::restartLiveAfterEnd(int mode) {
    m_journal.record("ZebLiveLoop::restartLiveAfterEnd", {mode});
}

void SimLiveLoop::setStopLive(bool stop, int mode) {
    m_journal.record("ZebLiveLoop::setStopLive", {stop, mode});
    for (Camera* camera : m_cameras.all()) {
        camera->set(&CameraState::stopLive, stop);
    }
}

void SimLiveLoop::updateLive() {
    m_journal.record("ZebLiveLoop::updateLive");
    Q_EMIT m_events.liveImageWanted();
}
