#include "SaveSource.h"

#include "Camera.h"
#include "CameraBank.h"
#include "CameraError.h"
#include "FileNames.h"
#include "TextKey.h"

#include <utility>

SaveSource::SaveSource(std::shared_ptr<Camera> camera, const Recording& recording, QString name, QString fileName)
    : m_camera(std::move(camera)),
      m_key(m_camera->key()),
      m_state(m_camera->state()),
      m_recording(recording),
      m_fileName(std::move(fileName)) {
    m_state.name = std::move(name);
}

CameraFrame SaveSource::frame(int index) const {
    return CameraFrame::recorded(m_state, SensorNoise::of(*m_camera), m_recording, m_recording.selectedFirst + index);
}

void SaveSource::read(const CameraBank& cameras, int index) const {
    m_camera->askConnected(OPERATION("readFrame"));
    // Another rig may have a camera of the same key.
    if (cameras.hold(m_key) != m_camera) {
        throw CameraError(name(), TextKey("the camera is gone"));
    }
    const int frame = m_recording.selectedFirst + index;
    const auto recording = m_camera->recording();
    if (!recording || recording->serial != m_recording.serial || frame < recording->first || frame > recording->last) {
        throw CameraError(name(), TextKey("the recording is gone"));
    }
}

void SaveSource::noteSaved() const {
    m_camera->noteSaved(m_recording);
}

SaveSources saveSources(const CameraBank& cameras, FileNames& names) {
    const std::vector<Camera*> known = cameras.known();
    QList<NamedCamera> named;
    for (const Camera* camera : known) {
        named.append({camera->name(), camera->address()});
    }
    const QStringList fileNames = names.of(named);
    SaveSources sources;
    for (std::size_t i = 0; i < known.size(); ++i) {
        const auto camera = cameras.hold(known[i]->key());
        const auto recording = known[i]->recording();
        if (camera && recording && camera->get(&CameraState::connected)) {
            sources.emplace_back(camera, *recording, cameras.labelOf(*camera), fileNames.at(int(i)));
        }
    }
    return sources;
}
