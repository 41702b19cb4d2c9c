#include "SimLiveLoop.h"

#include "Camera.h"
#include "CameraBank.h"
#include "HostCalls.h"
#include "HostEvents.h"

void SimLiveLoop::pauseLive(int mode) {
    m_calls.note("ZebLiveLoop::pauseLive", {mode});
    ++m_pauses;
}

void SimLiveLoop::resumeLive() {
    m_calls.note("ZebLiveLoop::resumeLive");
    m_pauses = qMax(0, m_pauses - 1);
}

void SimLiveLoop::restartLive(int mode, int reload, int keepView) {
    m_calls.change(OPERATION("ZebLiveLoop::restartLive"), {mode, reload, keepView});
    ++m_pauses;
}

void SimLiveLoop::restartLiveAfterTool(int mode) {
    m_calls.change(OPERATION("ZebLiveLoop::restartLiveAfterTool"), {mode});
}

void SimLiveLoop::restartLiveAfterEnd(int mode) {
    m_calls.change(OPERATION("ZebLiveLoop::restartLiveAfterEnd"), {mode});
}

void SimLiveLoop::setStopLive(bool stop, int mode) {
    m_calls.change(OPERATION("ZebLiveLoop::setStopLive"), {stop, mode});
    for (Camera* camera : m_cameras.ofRig()) {
        camera->set(&CameraState::stopLive, stop);
    }
}

void SimLiveLoop::updateLive() {
    m_calls.change(OPERATION("ZebLiveLoop::updateLive"));
    Q_EMIT m_events.liveImageWanted();
}
