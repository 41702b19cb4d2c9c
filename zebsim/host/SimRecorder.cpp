#include "host/SimRecorder.h"

#include "camera/Camera.h"
#include "host/CameraBank.h"
#include "host/Journal.h"
#include "host/StatusFlags.h"

#include <algorithm>

int SimRecorder::getRecStatus(const DocKeyList& keys) const {
    const QList<QPair<QString, zeb::RecordStatus>> states{{QStringLiteral("IsRecordingError"), zeb::RecordError},
                                                          {QStringLiteral("IsRecording"), zeb::RecordRecording},
                                                          {QStringLiteral("IsReady"), zeb::RecordReady},
                                                          {QStringLiteral("IsCTSReady"), zeb::RecordCtsReady}};
    for (const auto& [flag, status] : states) {
        if (m_flags.isOn(flag)) {
            return status;
        }
    }
    int furthest = zeb::RecordLive;
    for (const DOCKEY key : keys) {
        const Camera* camera = m_cameras.find(key);
        if (camera && camera->get(&CameraState::connected)) {
            furthest = std::max(furthest, camera->get(&CameraState::recordState));
        }
    }
    return furthest;
}

int SimRecorder::getRecordingState() const {
    DocKeyList keys;
    for (const Camera* camera : m_cameras.all()) {
        keys.append(camera->key());
    }
    return getRecStatus(keys);
}

void SimRecorder::startRecReady() {
    m_journal.record("ZebRecorder::startRecReady");
}

void SimRecorder::triggerRecording() {
    m_journal.record("ZebRecorder::triggerRecording");
}

void SimRecorder::stopRecording() {
    m_journal.record("ZebRecorder::stopRecording");
}

void SimRecorder::cancelRecording(bool recording) {
    m_journal.record("ZebRecorder::cancelRecording", {recording});
}
