#include "SimLock.h"

#include "Camera.h"
#include "DocContext.h"
#include "HostCalls.h"

int SimLock::getRecordState() const {
    m_camera.ask(OPERATION("getRecordState"));
    return m_camera.get(&CameraState::recordState);
}

bool SimLock::isParamLocked() const {
    m_camera.ask(OPERATION("isParamLocked"));
    return m_camera.get(&CameraState::locked);
}

void SimLock::setParamLock(bool lock) {
    m_context.calls.note("DOC_Lock::setParamLock", {m_camera.key(), lock});
    m_camera.ask(OPERATION("setParamLock"));
    const int recordState = m_camera.get(&CameraState::recordState);
    if (lock || (recordState != zeb::RecordReady && recordState != zeb::RecordRecording)) {
        m_camera.set(&CameraState::locked, lock);
    }
}
