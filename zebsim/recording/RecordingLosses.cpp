#include "RecordingLosses.h"

#include "Camera.h"
#include "CameraBank.h"
#include "TextKey.h"
#include "Translator.h"

#include <utility>

namespace {

const QString TakesNoPart = TextKey("It does not take part in the recording.");
const QString HasDisappeared = TextKey("%1: the camera has disappeared.");

QString whyLeftBehind(int state, bool waits) {
    switch (state) {
        case zeb::RecordReady:
            return waits ? TextKey("%1: the camera has changed to a partition with images that nobody has saved.")
                         : TextKey("%1: the camera holds images that nobody has saved.");
        case zeb::RecordRecording:
            return TextKey("%1: the camera records by itself.");
        default:
            return TextKey("%1: the camera is not ready.");
    }
}

QString whyMissed(RecordingLosses::Why why) {
    switch (why) {
        case RecordingLosses::Disappeared:
            return HasDisappeared;
        case RecordingLosses::Disconnected:
            return TextKey("%1: the camera was disconnected.");
        default:
            return TextKey("%1: the camera has left the recording.");
    }
}

}  // namespace

QString RecordingLosses::line(const QString& text, const Camera& camera) const {
    return m_translator.translate(text).arg(m_cameras.labelOf(camera));
}

QString RecordingLosses::line(const QString& text, const Camera& camera, unsigned int value) const {
    return m_translator.translate(text).arg(m_cameras.labelOf(camera), QString::number(value));
}

void RecordingLosses::lose(const Camera& camera, const QString& line) {
    m_news.append(line);
    m_losses.insert(camera.key(), line);
}

void RecordingLosses::fail(const Camera& camera, const QString& reason) {
    lose(camera, reason % QStringLiteral(". ") % m_translator.translate(TakesNoPart));
}

void RecordingLosses::leaveBehind(const Camera& camera, bool waits) {
    const QString why = whyLeftBehind(camera.recordState(), waits);
    lose(camera, line(why, camera) % QLatin1Char(' ') % m_translator.translate(TakesNoPart));
}

void RecordingLosses::miss(const Camera& camera, Why why, bool isTriggered) {
    const QString loss = isTriggered ? TextKey("Its recording is lost.") : TakesNoPart;
    lose(camera, line(whyMissed(why), camera) % QLatin1Char(' ') % m_translator.translate(loss));
    if (camera.isGone()) {
        m_vanished.insert(camera.key());
    }
}

void RecordingLosses::missArea(const Camera& camera) {
    lose(camera, line(TextKey("%1: no frame of its record area was recorded."), camera));
}

void RecordingLosses::tellReason(const QString& reason) {
    if (!reason.isEmpty()) {
        m_news.append(reason);
    }
}

void RecordingLosses::tellOwnTrigger(const Camera& camera) {
    m_news.append(line(TextKey("%1: the camera has triggered itself. It records on."), camera));
}

void RecordingLosses::tellEarlyEnd(const QString& reason, unsigned int frames) {
    const QString text = TextKey("%1. The recording ended early with %2 frames.");
    m_news.append(m_translator.translate(text).arg(reason, QString::number(frames)));
}

void RecordingLosses::tellOtherPartition(const Camera& camera, PARTITIONNUMBER partition) {
    const QString text = TextKey("%1: its recording lies in partition %2, and another one is in use.");
    m_news.append(line(text, camera, partition));
}

void RecordingLosses::tellVanished() {
    for (const Camera* camera : m_cameras.known()) {
        if (!camera->isGone()) {
            m_vanished.remove(camera->key());
        } else if (!m_vanished.contains(camera->key())) {
            m_vanished.insert(camera->key());
            tellGone(*camera);
        }
    }
}

void RecordingLosses::tellGone(const Camera& camera) {
    unsigned int unsaved = 0;
    for (const Recording& recording : camera.recordings()) {
        unsaved += recording.saved ? 0 : recording.frameCount();
    }
    if (unsaved > 0) {
        const QString text = TextKey("%1: the camera has disappeared. %2 frames of it are not saved.");
        m_news.append(line(text, camera, unsaved));
    } else if (camera.get(&CameraState::connected)) {
        m_news.append(line(HasDisappeared, camera));
    }
}

QStringList RecordingLosses::takeNews() {
    return std::exchange(m_news, {});
}

void RecordingLosses::takeBack(const Camera& camera) {
    m_losses.remove(camera.key());
}

void RecordingLosses::end(bool isTriggered) {
    const QStringList losses = std::exchange(m_losses, {}).values();
    if (isTriggered) {
        m_lost = losses;
    }
}

void RecordingLosses::clear() {
    m_lost.clear();
    m_losses.clear();
    m_vanished.clear();
}
