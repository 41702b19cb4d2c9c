#include "RecordPart.h"

#include "Camera.h"

#include <utility>

RecordPart::RecordPart(std::shared_ptr<Camera> taken, qint64 now)
    : camera(std::move(taken)),
      customInfo(camera->get(&CameraState::customInfo)),
      partition(camera->get(&CameraState::partition)),
      readyAt(now) {
    if (camera->recordState() == zeb::RecordCtsReady) {
        readyAt += camera->model().ctsReady;
    }
}

void RecordPart::begin(qint64 now, bool withAreas) {
    settings = RecordSettings::of(camera->state(), camera->model());
    if (!withAreas) {
        settings.area = {};
    }
    partition = camera->get(&CameraState::partition);
    triggeredAt = now;
    triggered = true;
}

std::optional<Recording> RecordPart::recording(qint64 now) const {
    auto recording = settings.recording(triggeredAt - readyAt, now - triggeredAt);
    if (recording) {
        recording->customInfo = customInfo;
    }
    return recording;
}

bool RecordPart::isKept() const {
    return triggered && camera->recordingOf(partition);
}
