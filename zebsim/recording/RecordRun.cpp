#include "RecordRun.h"

#include "Camera.h"
#include "CameraBank.h"
#include "Clock.h"

#include <QScopedValueRollback>
#include <QtDebug>

#include <algorithm>
#include <exception>
#include <utility>

RecordRun::RecordRun(const CameraBank& cameras, CameraBatch& batch, const Clock& clock, const Translator& translator,
                     Listener listener)
    : m_cameras(cameras),
      m_batch(batch),
      m_clock(clock),
      m_listener(std::move(listener)),
      m_parts(cameras),
      m_losses(cameras, translator) {}

std::optional<std::vector<CameraAnswer>> RecordRun::command(const HeldCameras& cameras, void (Camera::*give)()) {
    const int before = m_abandoned;
    const QScopedValueRollback<bool> commanding(m_commanding, true);
    auto answers = m_batch.run(cameras, [give](Camera& camera) { (camera.*give)(); });
    return before == m_abandoned ? std::optional(std::move(answers)) : std::nullopt;
}

RecordPart& RecordRun::takeIn(const std::shared_ptr<Camera>& camera) {
    m_losses.takeBack(*camera);
    return m_parts.takeIn(camera, m_clock.now());
}

DocKeyList RecordRun::keysToArm() {
    DocKeyList keys;
    for (const auto& camera : m_parts.toArm()) {
        keys.append(camera->key());
    }
    return keys;
}

void RecordRun::arm() {
    if (m_parts.areTriggered()) {
        return;
    }
    HeldCameras cameras = m_parts.toArm();
    const auto atRest =
        std::stable_partition(cameras.begin(), cameras.end(), [](const auto& camera) { return camera->isArmed(); });
    std::for_each(cameras.begin(), atRest, [this](const auto& camera) { takeIn(camera); });
    cameras.erase(cameras.begin(), atRest);
    const auto answers = command(cameras, &Camera::arm);
    for (std::size_t i = 0; answers && i < cameras.size(); ++i) {
        drop(takeIn(cameras[i]), answers->at(i));
    }
    m_changed = true;
    const bool isEmpty = m_parts.isEmpty();
    tell();
    if (isEmpty) {
        m_listener.ended(false);
    }
}

void RecordRun::trigger(bool withAreas, bool sparesUnsaved) {
    proceed();
    HeldCameras late = m_parts.connected([](const Camera& camera) { return camera.recordState() != zeb::RecordReady; });
    HeldCameras cameras =
        m_parts.connected([](const Camera& camera) { return camera.recordState() == zeb::RecordReady; });
    if (m_parts.isEmpty() || cameras.empty()) {
        return;
    }
    const auto spared = std::stable_partition(cameras.begin(), cameras.end(), [&](const auto& camera) {
        return !sparesUnsaved || !m_parts.wouldLoseUnsaved(*camera);
    });
    late.insert(late.end(), spared, cameras.end());
    cameras.erase(spared, cameras.end());
    for (const auto& camera : cameras) {
        RecordPart* part = m_parts.find(*camera);
        if (part == nullptr || part->over) {
            qInfo() << "A camera that has armed itself takes part:" << m_cameras.labelOf(*camera);
            part = &takeIn(camera);
        }
        part->begin(m_clock.now(), withAreas);
    }
    const auto answers = command(cameras, &Camera::trigger);
    if (!answers) {
        return;
    }
    m_triggered = m_triggered || !cameras.empty();
    for (std::size_t i = 0; i < cameras.size(); ++i) {
        drop(*m_parts.find(*cameras[i]), answers->at(i));
    }
    leaveBehind(late);
    m_changed = true;
    tell();
}

/// Those that have triggered themselves record already, and what became of the failed ones has been told.
void RecordRun::leaveBehind(const HeldCameras& late) {
    HeldCameras waiting;
    for (const auto& camera : late) {
        RecordPart* part = m_parts.find(*camera);
        const bool waits = part != nullptr && part->waits();
        if (part != nullptr && !waits && camera->recordState() != zeb::RecordReady) {
            continue;
        }
        m_losses.leaveBehind(*camera, waits);
        if (waits) {
            part->over = true;
            waiting.push_back(camera);
        }
    }
    if (const auto answers = command(waiting, &Camera::disarm)) {
        tellReasons(*answers);
    }
}

void RecordRun::tellReasons(const std::vector<CameraAnswer>& answers) {
    for (const CameraAnswer& answer : answers) {
        m_losses.tellReason(answer.reason);
    }
}

/// A camera with which something was wrong takes no part; one that was left out stays as it was.
void RecordRun::drop(RecordPart& part, const CameraAnswer& answer) {
    if (answer.reason.isEmpty()) {
        return;
    }
    m_losses.fail(*part.camera, answer.reason);
    part.over = true;
    part.triggered = false;
    if (!answer.isLeftOut) {
        enter(part, zeb::RecordError);
    }
}

void RecordRun::stop() {
    proceed();
    const qint64 now = m_clock.now();
    const HeldCameras cameras = m_parts.toStop();
    const auto answers = command(cameras, &Camera::stop);
    if (!answers) {
        return;
    }
    tellReasons(*answers);
    for (std::size_t i = 0; i < cameras.size(); ++i) {
        // One that can't be stopped goes on until its memory is full.
        if (answers->at(i).reason.isEmpty() && !cameras[i]->isGone()) {
            end(*m_parts.find(*cameras[i]), now, zeb::RecordLive);
        }
    }
    tell();
}

void RecordRun::cancel() {
    const qint64 now = m_clock.now();
    const HeldCameras cameras = m_parts.toCancel();
    const auto answers = command(cameras, &Camera::cancel);
    if (!answers) {
        return;
    }
    tellReasons(*answers);
    for (std::size_t i = 0; i < cameras.size(); ++i) {
        if (answers->at(i).isLeftOut) {
            continue;
        }
        const int state = answers->at(i).reason.isEmpty() ? zeb::RecordLive : zeb::RecordError;
        RecordPart* part = m_parts.find(*cameras[i]);
        if (part == nullptr || part->over) {
            cameras[i]->enterRecordState(state);
        } else if (!cameras[i]->isGone()) {
            end(*part, now, state);
        }
    }
    // Those that the command has not reached.
    proceedAll(now);
    if (m_parts.areOver()) {
        finish();
    } else {
        tell();
    }
}

void RecordRun::abandon() {
    ++m_abandoned;
    m_losses.clear();
    m_triggered = false;
    if (!m_parts.isEmpty()) {
        m_parts.clear();
        m_listener.ended(false);
    }
}

void RecordRun::proceed() {
    if (m_commanding) {
        return;
    }
    proceedAll(m_clock.now());
    m_losses.tellVanished();
    tell();
}

void RecordRun::proceedAll(qint64 now) {
    for (RecordPart& part : m_parts) {
        if (!part.over) {
            proceed(part, now);
        }
    }
}

void RecordRun::proceed(RecordPart& part, qint64 now) {
    const Camera& camera = *part.camera;
    const int state = camera.recordState();
    if (camera.isGone()) {
        miss(part, RecordingLosses::Disappeared);
        enter(part, zeb::RecordLive);
    } else if (!camera.get(&CameraState::connected)) {
        miss(part, RecordingLosses::Disconnected);
        enter(part, zeb::RecordLive);
    } else if (state == zeb::RecordRecording) {
        if (!part.triggered) {
            followItsTrigger(part);
        }
        record(part, now);
    } else if (part.triggered || !camera.isArmed()) {
        // Somebody else has put it back, or it was disconnected for a while.
        miss(part, RecordingLosses::Left);
    } else if (state == zeb::RecordCtsReady && now >= part.readyAt) {
        enter(part, zeb::RecordReady);
    }
}

/// A camera that has triggered itself records on and keeps what it records.
void RecordRun::followItsTrigger(RecordPart& part) {
    if (m_parts.wouldLoseUnsaved(*part.camera)) {
        qWarning()
            << "Unsaved images were recorded over by a camera that has changed its partition and triggered itself:"
            << m_cameras.labelOf(*part.camera);
    }
    part.begin(m_clock.now(), false);
    part.camera->keep(part.partition, std::nullopt);
    m_triggered = true;
    m_changed = true;
    m_losses.tellOwnTrigger(*part.camera);
}

void RecordRun::record(RecordPart& part, qint64 now) {
    const Camera& camera = *part.camera;
    const qint64 full = part.fullAt();
    try {
        camera.ask(OPERATION("record"));
    } catch (const std::exception& failure) {
        end(part, std::min(now, full), zeb::RecordError);
        const auto kept = camera.recordingOf(part.partition);
        m_losses.tellEarlyEnd(QString::fromUtf8(failure.what()), kept ? kept->frameCount() : 0);
        return;
    }
    if (camera.isGone()) {
        miss(part, RecordingLosses::Disappeared);
        enter(part, zeb::RecordLive);
    } else if (now >= full) {
        end(part, full, zeb::RecordLive);
    }
}

void RecordRun::miss(RecordPart& part, RecordingLosses::Why why) {
    m_losses.miss(*part.camera, why, part.triggered);
    part.over = true;
    part.triggered = false;
    m_changed = true;
}

void RecordRun::end(RecordPart& part, qint64 now, int recordState) {
    if (part.triggered) {
        const auto recording = part.recording(now);
        part.camera->keep(part.partition, recording);
        if (!recording) {
            m_losses.missArea(*part.camera);
        } else if (part.camera->get(&CameraState::partition) != part.partition) {
            m_losses.tellOtherPartition(*part.camera, part.partition);
        }
    }
    part.over = true;
    enter(part, recordState);
}

void RecordRun::enter(RecordPart& part, int recordState) {
    part.camera->enterRecordState(recordState);
    m_changed = true;
}

void RecordRun::tell() {
    if (std::exchange(m_changed, false)) {
        m_listener.changed();
    }
    const QStringList news = m_losses.takeNews();
    if (!news.isEmpty()) {
        m_listener.failed(news.join(QLatin1Char('\n')));
    }
    if (!m_parts.isEmpty() && m_parts.areOver()) {
        finish();
    }
}

void RecordRun::finish() {
    const bool recorded = m_parts.isAnyKept();
    m_parts.clear();
    const bool triggered = std::exchange(m_triggered, false);
    m_losses.end(triggered);
    if (triggered) {
        m_listener.shot();
    }
    m_changed = true;
    tell();
    m_listener.ended(recorded);
}
