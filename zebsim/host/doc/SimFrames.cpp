#include "SimFrames.h"

#include "SimAppStatus.h"

unsigned int SimFrames::getFrameCount(int partition, int /*head*/) const {
    const Camera& camera = askConnected(OPERATION("getFrameCount"));
    if (m_host.appStatus.mode() == zeb::LiveMode && !camera.isFile()) {
        return camera.model().frameCapacity(camera.state());
    }
    const auto recording = partition > 0 ? camera.recordingOf(PARTITIONNUMBER(partition)) : camera.recording();
    return recording ? recording->frameCount() : 0;
}

zeb::RecordedData SimFrames::getRecordedData(PARTITIONNUMBER partition) const {
    const auto recording = askConnected(OPERATION("getRecordedData")).recordingOf(partition);
    if (!recording) {
        return {};
    }
    const QSize size = recording->resolution;
    return {recording->rate,
            recording->shutter,
            size,
            recording->first,
            recording->last,
            recording->selectedFirst,
            recording->selectedLast,
            qint64(recording->frameCount()) * size.width() * size.height()};
}

void SimFrames::setRecordAreaStart(int frame) {
    Camera& camera = change(OPERATION("DOC_Frames::setRecordAreaStart"), {frame});
    camera.set(&CameraState::recordArea, {frame, camera.get(&CameraState::recordArea).y()});
}

void SimFrames::setRecordAreaEnd(int frame) {
    Camera& camera = change(OPERATION("DOC_Frames::setRecordAreaEnd"), {frame});
    camera.set(&CameraState::recordArea, {camera.get(&CameraState::recordArea).x(), frame});
}
