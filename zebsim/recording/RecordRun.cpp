#include "recording/RecordRun.h"

#include "camera/Camera.h"
#include "host/CameraBank.h"
#include "recording/Clock.h"

#include <algorithm>
#include <exception>
#include <utility>

namespace {

const QString HasDisappeared = QStringLiteral("%1: the camera has disappeared.");

bool isArmed(int state) {
    return state == zeb::RecordCtsReady || state == zeb::RecordReady;
}

}  // namespace

RecordRun::RecordRun(const CameraBank& cameras, const Clock& clock, Listener listener)
    : m_cameras(cameras), m_clock(clock), m_listener(std::move(listener)) {}

RecordRun::~RecordRun() = default;

std::vector<std::shared_ptr<Camera>> RecordRun::camerasIn(const std::function<bool(int state)>& wanted) const {
    std::vector<std::shared_ptr<Camera>> cameras;
    for (const Camera* camera : m_cameras.all()) {
        if (camera->get(&CameraState::connected) && wanted(camera->get(&CameraState::recordState))) {
            cameras.push_back(m_cameras.hold(camera->key()));
        }
    }
    return cameras;
}

/// A camera that somebody else has armed takes part from the time it is needed.
RecordRun::Part& RecordRun::partOf(const std::shared_ptr<Camera>& camera) {
    const auto known =
        std::find_if(m_parts.begin(), m_parts.end(), [&](const Part& part) { return part.camera == camera; });
    if (known != m_parts.end()) {
        return *known;
    }
    m_parts.push_back({camera, {}, 0, 0, false, false});
    return m_parts.back();
}

bool RecordRun::tried(const std::function<void()>& command) {
    try {
        command();
        return true;
    } catch (const std::exception& failure) {
        m_failures.append(QString::fromUtf8(failure.what()));
        return false;
    }
}

void RecordRun::arm() {
    for (const auto& camera : camerasIn([](int state) { return !isArmed(state) && state != zeb::RecordRecording; })) {
        Part& part = partOf(camera);
        part = {camera, {}, 0, 0, false, false};
        if (tried([&] { camera->arm(); })) {
            part.readyAt = m_clock.now() + camera->model().ctsReady;
        } else {
            part.over = true;
            camera->enterRecordState(zeb::RecordError);
        }
    }
    m_changed = true;
    const bool isEmpty = m_parts.empty();
    tell();
    if (isEmpty) {
        m_listener.ended(false);
    }
}

void RecordRun::trigger(bool withAreas) {
    proceed();
    const qint64 now = m_clock.now();
    for (const auto& camera : camerasIn([](int state) { return state == zeb::RecordReady; })) {
        Part& part = partOf(camera);
        part.settings = RecordSettings::of(camera->state(), camera->model());
        if (!withAreas) {
            part.settings.area = {};
        }
        if (tried([&] { camera->trigger(); })) {
            part.triggeredAt = now;
            part.triggered = true;
        } else {
            part.over = true;
            camera->enterRecordState(zeb::RecordError);
        }
    }
    m_changed = true;
    tell();
}

void RecordRun::stop() {
    proceed();
    const qint64 now = m_clock.now();
    for (const auto& camera : camerasIn([](int state) { return state == zeb::RecordRecording; })) {
        Part& part = partOf(camera);
        // One that can't be stopped goes on until its memory is full.
        if (tried([&] { camera->stop(); }) && !camera->isGone()) {
            end(part, now, zeb::RecordLive);
        }
    }
    tell();
}

void RecordRun::cancel() {
    const qint64 now = m_clock.now();
    for (const auto& camera : camerasIn([](int state) { return state != zeb::RecordLive; })) {
        Part& part = partOf(camera);
        const int state = tried([&] { camera->cancel(); }) ? zeb::RecordLive : zeb::RecordError;
        if (part.over) {
            enter(part, state);
        } else {
            end(part, now, state);
        }
    }
    const bool recorded = hasRecorded();
    m_parts.clear();
    m_changed = true;
    tell();
    m_listener.ended(recorded);
}

void RecordRun::abandon() {
    if (!std::exchange(m_parts, {}).empty()) {
        m_listener.ended(false);
    }
}

void RecordRun::proceed() {
    if (m_parts.empty()) {
        return;
    }
    const qint64 now = m_clock.now();
    for (Part& part : m_parts) {
        if (!part.over) {
            proceed(part, now);
        }
    }
    tell();
}

void RecordRun::proceed(Part& part, qint64 now) {
    const Camera& camera = *part.camera;
    const int state = camera.get(&CameraState::recordState);
    if (camera.isGone()) {
        miss(part, HasDisappeared);
        enter(part, zeb::RecordLive);
    } else if (!camera.get(&CameraState::connected)) {
        miss(part, QStringLiteral("%1: the camera was disconnected."));
        enter(part, zeb::RecordLive);
    } else if (state == zeb::RecordRecording) {
        record(part, now);
    } else if (part.triggered || !isArmed(state)) {
        // Somebody else has put it back, or it was disconnected for a while.
        miss(part, QStringLiteral("%1: the camera has left the recording."));
    } else if (state == zeb::RecordCtsReady && now >= part.readyAt) {
        enter(part, zeb::RecordReady);
    }
}

void RecordRun::record(Part& part, qint64 now) {
    const qint64 full = part.triggeredAt + part.settings.duration();
    const Camera& camera = *part.camera;
    try {
        camera.query("record");
    } catch (const std::exception& failure) {
        end(part, std::min(now, full), zeb::RecordError);
        const auto kept = camera.recording();
        m_failures.append(m_listener.translate(QStringLiteral("%1. The recording ended early with %2 frames."))
                              .arg(QString::fromUtf8(failure.what()))
                              .arg(kept ? kept->frameCount() : 0));
        return;
    }
    if (camera.isGone()) {
        miss(part, HasDisappeared);
        enter(part, zeb::RecordLive);
    } else if (part.triggered && now >= full) {
        end(part, full, zeb::RecordLive);
    }
}

void RecordRun::miss(Part& part, const QString& why) {
    const QString loss = part.triggered ? QStringLiteral("Its recording is lost.")
                                        : QStringLiteral("It does not take part in the recording.");
    m_failures.append(m_listener.translate(why).arg(part.camera->name()) + QLatin1Char(' ') +
                      m_listener.translate(loss));
    part.over = true;
    part.triggered = false;
    m_changed = true;
}

void RecordRun::end(Part& part, qint64 now, int recordState) {
    if (part.triggered) {
        part.camera->keep(part.settings.recording(part.triggeredAt - part.readyAt, now - part.triggeredAt));
    }
    part.over = true;
    enter(part, recordState);
}

void RecordRun::enter(Part& part, int recordState) {
    part.camera->enterRecordState(recordState);
    m_changed = true;
}

void RecordRun::tell() {
    if (std::exchange(m_changed, false)) {
        m_listener.changed();
    }
    if (!m_failures.isEmpty()) {
        m_listener.failed(std::exchange(m_failures, {}).join(QLatin1Char('\n')));
    }
    const bool isOver = std::all_of(m_parts.begin(), m_parts.end(), [](const Part& part) { return part.over; });
    if (m_parts.empty() || !isOver) {
        return;
    }
    const bool recorded = hasRecorded();
    m_parts.clear();
    m_listener.ended(recorded);
}

bool RecordRun::hasRecorded() const {
    return std::any_of(m_parts.begin(), m_parts.end(),
                       [](const Part& part) { return part.triggered && part.camera->get(&CameraState::recorded); });
}
