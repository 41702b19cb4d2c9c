#include "RecordRun.h"

#include "Camera.h"
#include "CameraBank.h"
#include "Clock.h"
#include "TextKey.h"

#include <QtDebug>

#include <algorithm>
#include <exception>
#include <future>
#include <system_error>
#include <utility>

namespace {

const QString TakesNoPart = TextKey("It does not take part in the recording.");
const QString HasDisappeared = TextKey("%1: the camera has disappeared.");

bool isArmed(int state) {
    return state == zeb::RecordCtsReady || state == zeb::RecordReady;
}

/// `waits`: it was armed here. One that is ready holds images that nobody has saved.
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

RecordRun::Cameras RecordRun::camerasOf(const std::function<bool(const Part& part)>& wanted) const {
    Cameras cameras;
    for (const Part& part : m_parts) {
        if (wanted(part)) {
            cameras.push_back(part.camera);
        }
    }
    return cameras;
}

/// Null when it takes no part and has taken none.
RecordRun::Part* RecordRun::findPart(const Camera& camera) {
    const auto known =
        std::find_if(m_parts.begin(), m_parts.end(), [&](const Part& part) { return part.camera.get() == &camera; });
    return known == m_parts.end() ? nullptr : &*known;
}

/// The camera takes part, whatever has become of it before. The answer is good until the next one.
RecordRun::Part& RecordRun::takeIn(const std::shared_ptr<Camera>& camera) {
    const bool waits = camera->get(&CameraState::recordState) == zeb::RecordCtsReady;
    Part* part = findPart(*camera);
    if (part == nullptr) {
        m_parts.emplace_back();
        part = &m_parts.back();
    }
    *part = Part();
    part->camera = camera;
    part->partition = camera->get(&CameraState::partition);
    part->readyAt = m_clock.now() + (waits ? camera->model().ctsReady : 0);
    m_losses.remove(camera->key());
    return *part;
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
    }
    return reasons;
}

int RecordRun::statusOf(const DocKeyList& keys) const {
    const QSet<DOCKEY> asked(keys.begin(), keys.end());
    QList<int> each;
    for (const Part& part : m_parts) {
        const int state = part.camera->get(&CameraState::recordState);
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

bool RecordRun::isRecording() const {
    const auto goesOn = [](const Part& part) { return !part.over; };
    const auto waits = [](const Part& part) { return !part.over && !part.triggered; };
    return std::any_of(m_parts.begin(), m_parts.end(), goesOn) && std::none_of(m_parts.begin(), m_parts.end(), waits);
}

RecordRun::Cameras RecordRun::camerasToArm() {
    Cameras cameras = camerasIn([](int state) { return state != zeb::RecordRecording; });
    const auto takesPart = [this](const std::shared_ptr<Camera>& camera) {
        const Part* part = findPart(*camera);
        return part != nullptr && !part->over && isArmed(camera->get(&CameraState::recordState));
    };
    cameras.erase(std::remove_if(cameras.begin(), cameras.end(), takesPart), cameras.end());
    return isRecording() ? Cameras() : cameras;
}

DocKeyList RecordRun::keysToArm() {
    DocKeyList keys;
    for (const auto& camera : camerasToArm()) {
        keys.append(camera->key());
    }
    return keys;
}

void RecordRun::arm() {
    if (isRecording()) {
        return;
    }
    Cameras cameras = camerasToArm();
    const auto atRest = std::stable_partition(cameras.begin(), cameras.end(), [](const auto& camera) {
        return isArmed(camera->get(&CameraState::recordState));
    });
    std::for_each(cameras.begin(), atRest, [this](const auto& camera) { takeIn(camera); });
    cameras.erase(cameras.begin(), atRest);
    const QStringList reasons = commandAll(cameras, &Camera::arm);
    for (std::size_t i = 0; i < cameras.size(); ++i) {
        drop(takeIn(cameras[i]), reasons.at(int(i)));
    }
    m_changed = true;
    const bool isEmpty = m_parts.empty();
    tell();
    if (isEmpty) {
        m_listener.ended(false);
    }
}

void RecordRun::trigger(bool withAreas, bool sparesUnsaved) {
    proceed();
    Cameras late = camerasIn([](int state) { return state != zeb::RecordReady; });
    Cameras cameras = camerasIn([](int state) { return state == zeb::RecordReady; });
    if (m_parts.empty() || cameras.empty()) {
        return;
    }
    const auto spared = std::stable_partition(cameras.begin(), cameras.end(), [&](const auto& camera) {
        return !sparesUnsaved || !wouldLoseUnsaved(*camera);
    });
    late.insert(late.end(), spared, cameras.end());
    cameras.erase(spared, cameras.end());
    for (const auto& camera : cameras) {
        Part* part = findPart(*camera);
        if (part == nullptr || part->over) {
            qInfo() << "A camera that has armed itself takes part:" << m_cameras.labelOf(*camera);
            part = &takeIn(camera);
        }
        begin(*part, withAreas);
    }
    const QStringList reasons = commandAll(cameras, &Camera::trigger);
    m_triggered = m_triggered || !cameras.empty();
    for (std::size_t i = 0; i < cameras.size(); ++i) {
        drop(*findPart(*cameras[i]), reasons.at(int(i)));
    }
    leaveBehind(late);
    m_changed = true;
    tell();
}

bool RecordRun::wouldLoseUnsaved(const Camera& camera) {
    const Part* part = findPart(camera);
    const auto held = camera.recording();
    const bool isAgreed = part != nullptr && !part->over && held && held->partition == part->partition;
    return held && !held->saved && !isAgreed;
}

void RecordRun::begin(Part& part, bool withAreas) {
    part.settings = RecordSettings::of(part.camera->state(), part.camera->model());
    if (!withAreas) {
        part.settings.area = {};
    }
    part.partition = part.camera->get(&CameraState::partition);
    part.triggeredAt = m_clock.now();
    part.triggered = true;
}

/// Those that have triggered themselves record already, and what became of the failed ones has been told.
void RecordRun::leaveBehind(const Cameras& late) {
    Cameras waiting;
    for (const auto& camera : late) {
        Part* part = findPart(*camera);
        const int state = camera->get(&CameraState::recordState);
        const bool waits = part != nullptr && !part->over && !part->triggered;
        if (part != nullptr && !waits && state != zeb::RecordReady) {
            continue;
        }
        lose(*camera, m_listener.translate(whyLeftBehind(state, waits)).arg(m_cameras.labelOf(*camera)) %
                          QLatin1Char(' ') % m_listener.translate(TakesNoPart));
        if (waits) {
            part->over = true;
            waiting.push_back(camera);
        }
    }
    addFailures(commandAll(waiting, &Camera::disarm));
}

/// A camera with which something was wrong, for a `reason`, takes no part.
void RecordRun::drop(Part& part, const QString& reason) {
    if (!reason.isEmpty()) {
        lose(*part.camera, reason % QStringLiteral(". ") % m_listener.translate(TakesNoPart));
        part.over = true;
        part.triggered = false;
        enter(part, zeb::RecordError);
    }
}

void RecordRun::stop() {
    proceed();
    const qint64 now = m_clock.now();
    const Cameras cameras = camerasOf([](const Part& part) { return !part.over && part.triggered; });
    const QStringList reasons = commandAll(cameras, &Camera::stop);
    addFailures(reasons);
    for (std::size_t i = 0; i < cameras.size(); ++i) {
        // One that can't be stopped goes on until its memory is full.
        if (reasons.at(int(i)).isEmpty() && !cameras[i]->isGone()) {
            end(*findPart(*cameras[i]), now, zeb::RecordLive);
        }
    }
    tell();
}

void RecordRun::cancel() {
    const qint64 now = m_clock.now();
    Cameras cameras = camerasOf([](const Part& part) {
        const Camera& camera = *part.camera;
        return !part.over && camera.get(&CameraState::connected) &&
               camera.get(&CameraState::recordState) != zeb::RecordLive;
    });
    for (const auto& camera : camerasIn([](int state) { return isArmed(state) || state == zeb::RecordError; })) {
        if (std::find(cameras.begin(), cameras.end(), camera) == cameras.end()) {
            cameras.push_back(camera);
        }
    }
    const QStringList reasons = commandAll(cameras, &Camera::cancel);
    addFailures(reasons);
    for (std::size_t i = 0; i < cameras.size(); ++i) {
        const int state = reasons.at(int(i)).isEmpty() ? zeb::RecordLive : zeb::RecordError;
        Part* part = findPart(*cameras[i]);
        if (part == nullptr || part->over) {
            cameras[i]->enterRecordState(state);
        } else if (!cameras[i]->isGone()) {
            end(*part, now, state);
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
    m_vanished.clear();
    m_triggered = false;
    if (!std::exchange(m_parts, {}).empty()) {
        m_listener.ended(false);
    }
}

void RecordRun::proceed() {
    const qint64 now = m_clock.now();
    for (Part& part : m_parts) {
        if (!part.over) {
            proceed(part, now);
        }
    }
    missOthers();
    tell();
}

void RecordRun::proceed(Part& part, qint64 now) {
    const Camera& camera = *part.camera;
    const int state = camera.get(&CameraState::recordState);
    if (camera.isGone()) {
        miss(part, HasDisappeared);
        enter(part, zeb::RecordLive);
    } else if (!camera.get(&CameraState::connected)) {
        miss(part, TextKey("%1: the camera was disconnected."));
        enter(part, zeb::RecordLive);
    } else if (state == zeb::RecordRecording) {
        if (!part.triggered) {
            followItsTrigger(part);
        }
        record(part, now);
    } else if (part.triggered || !isArmed(state)) {
        // Somebody else has put it back, or it was disconnected for a while.
        miss(part, TextKey("%1: the camera has left the recording."));
    } else if (state == zeb::RecordCtsReady && now >= part.readyAt) {
        enter(part, zeb::RecordReady);
    }
}

/// A camera that has triggered itself records on and keeps what it records.
void RecordRun::followItsTrigger(Part& part) {
    if (wouldLoseUnsaved(*part.camera)) {
        qWarning()
            << "Unsaved images were recorded over by a camera that has changed its partition and triggered itself:"
            << m_cameras.labelOf(*part.camera);
    }
    begin(part, false);
    part.camera->keep(part.partition, std::nullopt);
    m_triggered = true;
    m_changed = true;
    m_failures.append(m_listener.translate(TextKey("%1: the camera has triggered itself. It records on."))
                          .arg(m_cameras.labelOf(*part.camera)));
}

void RecordRun::record(Part& part, qint64 now) {
    const qint64 full = part.triggeredAt + part.settings.duration();
    const Camera& camera = *part.camera;
    try {
        camera.ask(OPERATION("record"));
    } catch (const std::exception& failure) {
        end(part, std::min(now, full), zeb::RecordError);
        const auto kept = camera.recordingOf(part.partition);
        m_failures.append(m_listener.translate(TextKey("%1. The recording ended early with %2 frames."))
                              .arg(QString::fromUtf8(failure.what()), QString::number(kept ? kept->frameCount() : 0)));
        return;
    }
    if (camera.isGone()) {
        miss(part, HasDisappeared);
        enter(part, zeb::RecordLive);
    } else if (now >= full) {
        end(part, full, zeb::RecordLive);
    }
}

/// Cameras that vanish while they take no part.
void RecordRun::missOthers() {
    for (const Camera* camera : m_cameras.known()) {
        if (!camera->isGone()) {
            m_vanished.remove(camera->key());
        } else if (!m_vanished.contains(camera->key())) {
            m_vanished.insert(camera->key());
            tellGone(*camera);
        }
    }
}

void RecordRun::tellGone(const Camera& camera) {
    unsigned int unsaved = 0;
    for (const Recording& recording : camera.recordings()) {
        unsaved += recording.saved ? 0 : recording.frameCount();
    }
    if (unsaved > 0) {
        const QString text = TextKey("%1: the camera has disappeared. %2 frames of it are not saved.");
        m_failures.append(m_listener.translate(text).arg(m_cameras.labelOf(camera), QString::number(unsaved)));
    } else if (camera.get(&CameraState::connected)) {
        m_failures.append(m_listener.translate(HasDisappeared).arg(m_cameras.labelOf(camera)));
    }
}

void RecordRun::miss(Part& part, const QString& why) {
    const QString loss = part.triggered ? TextKey("Its recording is lost.") : TakesNoPart;
    lose(*part.camera, m_listener.translate(why).arg(m_cameras.labelOf(*part.camera)) % QLatin1Char(' ') %
                           m_listener.translate(loss));
    part.over = true;
    part.triggered = false;
    m_changed = true;
    if (part.camera->isGone()) {
        m_vanished.insert(part.camera->key());
    }
}

void RecordRun::lose(const Camera& camera, const QString& line) {
    m_failures.append(line);
    m_losses.insert(camera.key(), line);
}

void RecordRun::addFailures(const QStringList& reasons) {
    m_failures.append(reasons);
    m_failures.removeAll(QString());
}

void RecordRun::end(Part& part, qint64 now, int recordState) {
    if (part.triggered) {
        const auto recording = part.settings.recording(part.triggeredAt - part.readyAt, now - part.triggeredAt);
        part.camera->keep(part.partition, recording);
        if (!recording) {
            const QString text = TextKey("%1: no frame of its record area was recorded.");
            lose(*part.camera, m_listener.translate(text).arg(m_cameras.labelOf(*part.camera)));
        } else if (part.camera->get(&CameraState::partition) != part.partition) {
            const QString text = TextKey("%1: its recording lies in partition %2, and another one is in use.");
            m_failures.append(
                m_listener.translate(text).arg(m_cameras.labelOf(*part.camera), QString::number(part.partition)));
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
        return part.triggered && part.camera->recordingOf(part.partition);
    });
    m_parts.clear();
    const QStringList losses = std::exchange(m_losses, {}).values();
    // Without a trigger what there is to save is still that of the last recording.
    if (std::exchange(m_triggered, false)) {
        m_lost = losses;
        m_listener.shot();
    }
    m_changed = true;
    tell();
    m_listener.ended(recorded);
}
