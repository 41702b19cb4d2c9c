// What a recording has its cameras do.

#include "Camera.h"
#include "Clock.h"
#include "RecordRun.h"

#include <QScopedValueRollback>
#include <QtDebug>

#include <algorithm>
#include <utility>

std::optional<std::vector<CameraAnswer>> RecordRun::command(const HeldCameras& cameras, void (Camera::*give)()) {
    const int before = m_abandoned;
    const QScopedValueRollback<bool> commanding(m_commanding, true);
    auto answers = m_batch.run(cameras, [give](Camera& camera) { (camera.*give)(); });
    return before == m_abandoned ? std::optional(std::move(answers)) : std::nullopt;
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
