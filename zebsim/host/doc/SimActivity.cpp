#include "SimActivity.h"

#include "Camera.h"
#include "DocContext.h"
#include "HostCalls.h"

bool SimActivity::isSuspendReduce() const {
    m_camera.ask(OPERATION("isSuspendReduce"));
    return m_camera.get(&CameraState::suspendReduce);
}

bool SimActivity::isStopLive() const {
    m_camera.ask(OPERATION("isStopLive"));
    return m_camera.get(&CameraState::stopLive);
}

void SimActivity::refresh(bool force) {
    m_context.calls.note("DOC_Activity::refresh", {m_camera.key(), force});
    m_camera.askConnected(OPERATION("refresh"));
}
