#include "RecordRun.h"

#include "Camera.h"
#include "CameraBank.h"
#include "Clock.h"

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
