#include "SimFrames.h"

#include "SimAppStatus.h"

unsigned int SimFrames::getFrameCount(int /*partition*/, int /*head*/) const {
    const Camera& camera = askConnected(OPERATION("getFrameCount"));
    if (m_host.appStatus.mode() == zeb::LiveMode) {
        return camera.model().frameCapacity(camera.state());
    }
    const auto recording = camera.recording();
    return recording ? recording->frameCount() : 0;
}

void SimFrames::setRecordAreaStart(int frame) {
    Camera& camera = change(OPERATION("DOC_Frames::setRecordAreaStart"), {frame});
    camera.set(&CameraState::recordArea, {frame, camera.get(&CameraState::recordArea).y()});
}

void SimFrames::setRecordAreaEnd(int frame) {
    Camera& camera = change(OPERATION("DOC_Frames::setRecordAreaEnd"), {frame});
    camera.set(&CameraState::recordArea, {camera.get(&CameraState::recordArea).x(), frame});
}
