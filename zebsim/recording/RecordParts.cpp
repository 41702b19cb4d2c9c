#include "RecordParts.h"

#include "Camera.h"
#include "CameraBank.h"

#include <QSet>

#include <algorithm>

RecordPart* RecordParts::find(const Camera& camera) {
    const auto known = std::find_if(m_parts.begin(), m_parts.end(),
                                    [&](const RecordPart& part) { return part.camera.get() == &camera; });
    return known == m_parts.end() ? nullptr : &*known;
}

RecordPart& RecordParts::takeIn(const std::shared_ptr<Camera>& camera, qint64 now) {
    const RecordPart taken(camera, now);
    if (RecordPart* known = find(*camera)) {
        return *known = taken;
    }
    return m_parts.emplace_back(taken);
}

bool RecordParts::areTriggered() const {
    const auto waits = [](const RecordPart& part) { return part.waits(); };
    return !areOver() && std::none_of(m_parts.begin(), m_parts.end(), waits);
}

bool RecordParts::areOver() const {
    return std::all_of(m_parts.begin(), m_parts.end(), [](const RecordPart& part) { return part.over; });
}

bool RecordParts::isAnyKept() const {
    return std::any_of(m_parts.begin(), m_parts.end(), [](const RecordPart& part) { return part.isKept(); });
}

bool RecordParts::wouldLoseUnsaved(const Camera& camera) const {
    const RecordPart* part = find(camera);
    const auto held = camera.recording();
    const bool isAgreed = part != nullptr && !part->over && held && held->partition == part->partition;
    return held && !held->saved && !isAgreed;
}

HeldCameras RecordParts::connected(const std::function<bool(const Camera& camera)>& are) const {
    HeldCameras cameras;
    for (const Camera* camera : m_cameras.connectedOfRig()) {
        const auto held = m_cameras.hold(camera->key());
        if (held && are(*held)) {
            cameras.push_back(held);
        }
    }
    return cameras;
}

HeldCameras RecordParts::camerasOf(const std::function<bool(const RecordPart& part)>& wanted) const {
    HeldCameras cameras;
    for (const RecordPart& part : m_parts) {
        if (wanted(part)) {
            cameras.push_back(part.camera);
        }
    }
    return cameras;
}

HeldCameras RecordParts::toArm() const {
    if (areTriggered()) {
        return {};
    }
    return connected([this](const Camera& camera) {
        const RecordPart* part = find(camera);
        const bool takesPart = part != nullptr && !part->over && camera.isArmed();
        return camera.recordState() != zeb::RecordRecording && !takesPart;
    });
}

HeldCameras RecordParts::toStop() const {
    return camerasOf([](const RecordPart& part) { return !part.over && part.triggered; });
}

HeldCameras RecordParts::toCancel() const {
    HeldCameras cameras = camerasOf([](const RecordPart& part) {
        return !part.over && part.camera->get(&CameraState::connected) && part.camera->recordState() != zeb::RecordLive;
    });
    const auto isArmedOrFailed = [](const Camera& camera) {
        return camera.isArmed() || camera.recordState() == zeb::RecordError;
    };
    for (const auto& camera : connected(isArmedOrFailed)) {
        if (std::find(cameras.begin(), cameras.end(), camera) == cameras.end()) {
            cameras.push_back(camera);
        }
    }
    return cameras;
}

int RecordParts::statusOf(const DocKeyList& keys) const {
    const QSet<DOCKEY> asked(keys.begin(), keys.end());
    QList<int> each;
    for (const RecordPart& part : m_parts) {
        const int state = part.camera->recordState();
        if (asked.contains(part.camera->key()) && !part.camera->isGone() && part.camera->get(&CameraState::connected)) {
            each.append(part.over && state != zeb::RecordError ? int(zeb::RecordLive) : state);
        }
    }
    // One that waits for CTS makes the others wait with their trigger, or it would be left behind; one that has
    // triggered itself must not keep it from the others. An error only when all have failed, for the others can record.
    for (const int status : {zeb::RecordCtsReady, zeb::RecordReady, zeb::RecordRecording, zeb::RecordLive}) {
        if (each.contains(status)) {
            return status;
        }
    }
    return each.isEmpty() ? zeb::RecordLive : zeb::RecordError;
}
