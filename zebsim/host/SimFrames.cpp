#include "host/SimFrames.h"

#include "camera/Camera.h"
#include "camera/Recording.h"
#include "host/DocContext.h"
#include "host/Journal.h"
#include "host/SimAppStatus.h"

unsigned int SimFrames::getFrameCount(int /*partition*/, int /*head*/) const {
    m_camera.queryConnected("getFrameCount");
    if (m_context.appStatus.mode() == zeb::LiveMode) {
        return m_camera.model().frameCapacity(m_camera.get(&CameraState::resolution));
    }
    const auto recording = m_camera.recording();
    return recording ? recording->frameCount() : 0;
}

int SimFrames::getFirstFrame(int /*partition*/, int /*head*/) const {
    return ask("getFirstFrame").first;
}

int SimFrames::getLastFrame(int /*partition*/, int /*head*/) const {
    return ask("getLastFrame").last;
}

int SimFrames::getTriggerFrame(int /*head*/) const {
    return ask("getTriggerFrame").trigger;
}

int SimFrames::getSelectStartFrame(int /*head*/) const {
    return ask("getSelectStartFrame").selectedFirst;
}

int SimFrames::getSelectEndFrame(int /*head*/) const {
    return ask("getSelectEndFrame").selectedLast;
}

bool SimFrames::isPlaying() const {
    m_camera.query("isPlaying");
    return m_camera.get(&CameraState::playing);
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

Recording SimFrames::ask(const char* operation) const {
    m_camera.queryConnected(operation);
    return m_camera.recording().value_or(Recording());
}
