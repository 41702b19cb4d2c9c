#include "recording/RecordRun.h"

#include "camera/Camera.h"
#include "host/CameraBank.h"
#include "recording/Clock.h"

#include <algorithm>
#include <exception>
#include <future>
#include <system_error>
#include <utility>

namespace {

const QString TakesNoPart = QStringLiteral("It does not take part in the recording.");
const QString HasDisappeared = QStringLiteral("%1: the camera has disappeared.");

bool isArmed(int state) {
    return state == zeb::RecordCtsReady || state == zeb::RecordReady;
}

}  // namespace

RecordRun::RecordRun(const CameraBank& cameras, const Clock& clock, Listener listener)
    : m_cameras(cameras), m_clock(clock), m_listener(std::move(listener)) {}

RecordRun::~RecordRun() = default;

RecordRun::Cameras RecordRun::camerasIn(const std::function<bool(int state)>& wanted) const {
    Cameras cameras;
    for (const Camera* camera : m_cameras.all()) {
        const auto held = m_cameras.hold(camera->key());
        if (held && held->get(&CameraState::connected) && wanted(held->get(&CameraState::recordState))) {
            cameras.push_back(held);
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

/// The cameras take their time side by side. Answers what was wrong with each; nothing when it has done it.
QStringList RecordRun::commandAll(const Cameras& cameras, void (Camera::*command)()) {
    std::vector<std::future<QString>> answers;
    for (const auto& camera : cameras) {
        const auto work = [camera, command] {
            try {
                (*camera.*command)();
                return QString();
            } catch (const std::exception& failure) {
                return QString::fromUtf8(failure.what());
            }
        };
        try {
            answers.push_back(std::async(std::launch::async, work));
        } catch (const std::system_error&) {
            // No further thread is to be had, so this camera waits for its turn.
            answers.push_back(std::async(std::launch::deferred, work));
        }
    }
    QStringList reasons;
    for (auto& answer : answers) {
        reasons.append(answer.get());
        if (!reasons.last().isEmpty()) {
            m_failures.append(reasons.last());
        }
    }
    return reasons;
}

void RecordRun::arm() {
    const Cameras cameras = camerasIn([](int state) { return !isArmed(state) && state != zeb::RecordRecording; });
    const QStringList reasons = commandAll(cameras, &Camera::arm);
    for (std::size_t i = 0; i < cameras.size(); ++i) {
        Part& part = partOf(cameras[i]);
        part = {cameras[i], {}, 0, 0, false, false};
        part.readyAt = m_clock.now() + cameras[i]->model().ctsReady;
        drop(part, reasons.at(int(i)));
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
    const Cameras cameras = camerasIn([](int state) { return state == zeb::RecordReady; });
    for (const auto& camera : cameras) {
        Part& part = partOf(camera);
        part.settings = RecordSettings::of(camera->state(), camera->model());
        if (!withAreas) {
            part.settings.area = {};
        }
        part.triggeredAt = now;
        part.triggered = true;
    }
    const QStringList reasons = commandAll(cameras, &Camera::trigger);
    for (std::size_t i = 0; i < cameras.size(); ++i) {
        drop(partOf(cameras[i]), reasons.at(int(i)));
    }
    m_changed = true;
    tell();
}

/// A camera with which something was wrong, for a `reason`, takes no part.
void RecordRun::drop(Part& part, const QString& reason) {
    if (!reason.isEmpty()) {
        m_losses.append(reason % QStringLiteral(". ") % m_listener.translate(TakesNoPart));
        part.over = true;
        part.triggered = false;
        enter(part, zeb::RecordError);
    }
}

void RecordRun::stop() {
    proceed();
    const qint64 now = m_clock.now();
    const Cameras cameras = camerasIn([](int state) { return state == zeb::RecordRecording; });
    const QStringList reasons = commandAll(cameras, &Camera::stop);
    for (std::size_t i = 0; i < cameras.size(); ++i) {
        // One that can't be stopped goes on until its memory is full.
        if (reasons.at(int(i)).isEmpty() && !cameras[i]->isGone()) {
            end(partOf(cameras[i]), now, zeb::RecordLive);
        }
    }
    tell();
}

void RecordRun::cancel() {
    const qint64 now = m_clock.now();
    const Cameras cameras = camerasIn([](int state) { return state != zeb::RecordLive; });
    const QStringList reasons = commandAll(cameras, &Camera::cancel);
    for (std::size_t i = 0; i < cameras.size(); ++i) {
        Part& part = partOf(cameras[i]);
        const int state = reasons.at(int(i)).isEmpty() ? zeb::RecordLive : zeb::RecordError;
        if (part.over) {
            enter(part, state);
        } else if (!cameras[i]->isGone()) {
            end(part, now, state);
        }
    }
    // Those that the command has not reached.
    for (Part& part : m_parts) {
        if (!part.over) {
            proceed(part, now);
        }
    }
    finish();
}

void RecordRun::abandon() {
    m_lost.clear();
    m_losses.clear();
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
        camera.ask("record");
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
    const QString loss = part.triggered ? QStringLiteral("Its recording is lost.") : TakesNoPart;
    m_failures.append(m_listener.translate(why).arg(part.camera->name()) + QLatin1Char(' ') +
                      m_listener.translate(loss));
    m_losses.append(m_failures.last());
    part.over = true;
    part.triggered = false;
    m_changed = true;
}

void RecordRun::end(Part& part, qint64 now, int recordState) {
    if (part.triggered) {
        const auto recording = part.settings.recording(part.triggeredAt - part.readyAt, now - part.triggeredAt);
        part.camera->keep(recording);
        if (!recording) {
            const QString text = QStringLiteral("%1: no frame of its record area was recorded.");
            m_failures.append(m_listener.translate(text).arg(part.camera->name()));
            m_losses.append(m_failures.last());
        }
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
    if (!m_parts.empty() && isOver) {
        finish();
    }
}

void RecordRun::finish() {
    const bool recorded = std::any_of(m_parts.begin(), m_parts.end(), [](const Part& part) {
        return part.triggered && part.camera->get(&CameraState::recorded);
    });
    m_parts.clear();
    const QStringList losses = std::exchange(m_losses, {});
    if (recorded) {
        m_lost = losses;
    }
    m_changed = true;
    tell();
    m_listener.ended(recorded);
}
