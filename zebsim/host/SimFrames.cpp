#include "host/SimFrames.h"

#include "camera/Camera.h"
#include "host/DocContext.h"
#include "host/Journal.h"
#include "host/SimAppStatus.h"

unsigned int SimFrames::getFrameCount(int /*partition*/, int /*head*/) const {
    m_camera.queryConnected("getFrameCount");
    if (m_context.appStatus.mode() != zeb::LiveMode && !m_camera.get(&CameraState::recorded)) {
        return 0;
    }
    return m_camera.model().frameCapacity(m_camera.get(&CameraState::resolution));
}

bool SimFrames::isRecordCheck() const {
    m_camera.query("isRecordCheck");
    return m_camera.get(&CameraState::recordCheck);
}

void SimFrames::setRecordCheck(bool check) {
    m_context.journal.record("DOC_Frames::setRecordCheck", {m_camera.key(), check});
    m_camera.query("setRecordCheck");
    m_camera.set(&CameraState::recordCheck, check);
}
