#pragma once

#include "CameraFrame.h"
#include "CameraState.h"
#include "FrameMetadata.h"
#include "Recording.h"

#include <memory>
#include <vector>

class Camera;
class CameraBank;
class FileNames;

/// What one camera gives to a save: its selected range, as it stood when the save was asked for. GUI thread.
class SaveSource {
public:
    /// `fileName` is the first part of its files' names.
    SaveSource(std::shared_ptr<Camera> camera, const Recording& recording, QString name, QString fileName);

    DOCKEY key() const { return m_key; }
    /// What it is called in lists and in pictures.
    const QString& name() const { return m_state.name; }
    void setName(const QString& name) { m_state.name = name; }
    const QString& fileName() const { return m_fileName; }
    const Recording& recording() const { return m_recording; }
    QSize resolution() const { return frame(0).resolution; }
    int frames() const { return static_cast<int>(m_recording.selectedCount()); }
    /// What the range's frame number `index`, from 0 on, shows.
    CameraFrame frame(int index) const;
    FrameMetadata metadata(int index) const { return FrameMetadata::recorded(m_recording, frame(index)); }
    /// Has the camera hand that frame over. Throws `CameraError` when it is not there any more, does not answer, or has
    /// lost the recording.
    void read(const CameraBank& cameras, int index) const;
    /// All of it stands in files.
    void noteSaved() const;

private:
    std::shared_ptr<Camera> m_camera;
    DOCKEY m_key;
    CameraState m_state;
    Recording m_recording;
    QString m_fileName;
};

using SaveSources = std::vector<SaveSource>;

/// The connected cameras that have recorded something, in the order of their keys. `names` learns of all cameras.
SaveSources saveSources(const CameraBank& cameras, FileNames& names);
