#include "SaveSource.h"

#include "Camera.h"
#include "CameraBank.h"
#include "CameraError.h"
#include "FileError.h"
#include "InformationFile.h"
#include "RecordedPictures.h"
#include "TextKey.h"

#include <algorithm>
#include <utility>

SaveSource::SaveSource(std::shared_ptr<Camera> camera, const Recording& recording, QString name)
    : m_camera(std::move(camera)),
      m_key(m_camera->key()),
      m_state(m_camera->state()),
      m_ownName(m_state.name),
      m_recording(recording) {
    m_state.name = std::move(name);
}

QString SaveSource::comment() const {
    return QString(m_state.comment).replace(zeb::CommentSeparator, QLatin1String(" "));
}

int SaveSource::bits() const {
    return m_camera->model().bitDepth;
}

CameraFrame SaveSource::frame(int index) const {
    return CameraFrame::recorded(m_state, SensorNoise::of(*m_camera), m_recording, m_recording.selectedFirst + index);
}

CameraFrame SaveSource::frameFromTrigger(int index) const {
    CameraFrame frame = this->frame(index);
    frame.time = metadata(index).first.time.value_or(0);
    return frame;
}

TimedRange SaveSource::range() const {
    return {std::max(1U, m_recording.rate), qint64(m_recording.selectedFirst) - m_recording.trigger,
            qint64(m_recording.selectedLast) - m_recording.trigger};
}

RecordingInformation SaveSource::information() const {
    RecordingInformation information = RecordingInformation::of(*m_camera, m_state, m_recording);
    information.camera = m_ownName;
    return information;
}

QString SaveSource::absence(const CameraBank& cameras, int first, int last) const {
    // Another rig may have a camera of the same key.
    if (cameras.hold(m_key) != m_camera) {
        return isFile() ? TextKey("the recording was closed") : TextKey("the camera is gone");
    }
    if (!m_camera->get(&CameraState::connected)) {
        return TextKey("the camera was disconnected");
    }
    const auto there = m_camera->recordingOf(partition());
    const bool isSame = there && there->serial == m_recording.serial && first >= there->first && last <= there->last;
    return isSame ? QString() : TextKey("the recording is gone");
}

QString SaveSource::absence(const CameraBank& cameras) const {
    return absence(cameras, m_recording.selectedFirst, m_recording.selectedLast);
}

void SaveSource::read(const CameraBank& cameras, int index) const {
    m_camera->askConnected(OPERATION("readFrame"));
    const int frame = m_recording.selectedFirst + index;
    const QString reason = absence(cameras, frame, frame);
    if (!reason.isEmpty()) {
        throw CameraError(name(), reason);
    }
    if (isFile()) {
        readPicture(frame);
    }
}

/// It is kept for the one who draws it.
void SaveSource::readPicture(int frame) const {
    try {
        m_recording.pictures->picture(frame);
    } catch (const FileError& e) {
        throw CameraError(name(), unreadableText(e));
    }
}

Clock& SaveSource::clock() const {
    return m_camera->device().clock();
}

void SaveSource::noteSaved() const {
    if (!isFile()) {
        m_camera->noteSaved(m_recording);
    }
}

QStringList SaveSource::files() const {
    return isFile() ? m_recording.pictures->files() : QStringList();
}

SaveSources saveSources(const CameraBank& cameras) {
    return saveSources(cameras, cameras.keysOf(&CameraState::connected));
}

SaveSources saveSources(const CameraBank& cameras, const DocKeyList& keys) {
    SaveSources sources;
    for (const auto& camera : cameras.hold(keys)) {
        for (const Recording& recording : camera->recordings()) {
            sources.emplace_back(camera, recording, cameras.labelOf(*camera));
        }
    }
    return sources;
}
