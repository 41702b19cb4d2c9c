#include "saving/SaveSource.h"

#include "camera/Camera.h"
#include "camera/CameraError.h"
#include "host/CameraBank.h"

SaveSource::SaveSource(std::shared_ptr<const Camera> camera, const Recording& recording)
    : m_camera(std::move(camera)), m_key(m_camera->key()), m_state(m_camera->state()), m_recording(recording) {}

CameraFrame SaveSource::frame(int index) const {
    return CameraFrame::recorded(m_state, m_recording, m_recording.selectedFirst + index);
}

void SaveSource::read(const CameraBank& cameras, int index) const {
    m_camera->askConnected("readFrame");
    // Another rig may have a camera of the same key.
    if (cameras.hold(m_key) != m_camera) {
        throw CameraError(name(), QStringLiteral("the camera is gone"));
    }
    const int frame = m_recording.selectedFirst + index;
    const auto recording = m_camera->recording();
    if (!recording || recording->serial != m_recording.serial || frame < recording->first || frame > recording->last) {
        throw CameraError(name(), QStringLiteral("the recording is gone"));
    }
}

SaveSources saveSources(const CameraBank& cameras) {
    SaveSources sources;
    for (const Camera* listed : cameras.all()) {
        const auto recording = listed->recording();
        if (recording && listed->get(&CameraState::connected)) {
            sources.emplace_back(cameras.hold(listed->key()), *recording);
        }
    }
    return sources;
}
