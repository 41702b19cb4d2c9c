#include "recording/RecordRun.h"

#include "camera/Camera.h"
#include "host/CameraBank.h"
#include "recording/Clock.h"

#include <algorithm>
#include <exception>
#include <utility>

namespace {

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

void RecordRun::trigger() {
    proceed();
    const qint64 now = m_clock.now();
    for (const auto& camera : camerasIn([](int state) { return state == zeb::RecordReady; })) {
        Part& part = partOf(camera);
        part.settings = RecordSettings::of(camera->state(), camera->model());
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
    for (const auto& camera : camerasIn([](int state) { return state != zeb::RecordLive; })) {
        if (!tried([&] { camera->cancel(); })) {
            camera->enterRecordState(zeb::RecordError);
        }
    }
    for (const Part& part : std::exchange(m_parts, {})) {
        if (part.triggered) {
            part.camera->keep(std::nullopt);
        }
    }
    m_changed = true;
    tell();
    m_listener.ended(false);
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
    Camera& camera = *part.camera;
    if (camera.isGone() || !camera.get(&CameraState::connected)) {
        miss(part, camera.isGone());
        return;
    }
    switch (camera.get(&CameraState::recordState)) {
        case zeb::RecordCtsReady:
            if (now >= part.readyAt) {
                enter(part, zeb::RecordReady);
            }
            break;
        case zeb::RecordReady:
            break;
        case zeb::RecordRecording:
            record(part, now);
            break;
        default:
            // Somebody else has put it back.
            part.over = true;
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
        miss(part, true);
    } else if (part.triggered && now >= full) {
        end(part, full, zeb::RecordLive);
    }
}

void RecordRun::miss(Part& part, bool gone) {
    const QString text =
        gone ? QStringLiteral("%1: the camera has disappeared.") : QStringLiteral("%1: the camera was disconnected.");
    const QString loss = part.triggered ? QStringLiteral("Its recording is lost.")
                                        : QStringLiteral("It does not take part in the recording.");
    m_failures.append(m_listener.translate(text).arg(part.camera->name()) + QLatin1Char(' ') +
                      m_listener.translate(loss));
    part.over = true;
    part.triggered = false;
    enter(part, zeb::RecordLive);
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
    const bool recorded = std::any_of(m_parts.begin(), m_parts.end(), [](const Part& part) {
        return part.triggered && part.camera->get(&CameraState::recorded);
    });
    m_parts.clear();
    m_listener.ended(recorded);
}
