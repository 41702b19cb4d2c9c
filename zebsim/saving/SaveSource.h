#pragma once

#include "camera/CameraState.h"
#include "camera/Recording.h"
#include "image/CameraFrame.h"

#include <memory>
#include <vector>

class Camera;
class CameraBank;

/// What one camera gives to a save: its selected range, as it stood when the save was asked for. GUI thread.
class SaveSource {
public:
    SaveSource(std::shared_ptr<const Camera> camera, const Recording& recording);

    DOCKEY key() const { return m_key; }
    const QString& name() const { return m_state.name; }
    const Recording& recording() const { return m_recording; }
    QSize resolution() const { return frame(0).resolution; }
    int frames() const { return static_cast<int>(m_recording.selectedCount()); }
    /// What the range's frame number `index`, from 0 on, shows.
    CameraFrame frame(int index) const;
    /// Has the camera hand that frame over. Throws `CameraError` when it is not there any more, does not answer, or has
    /// lost the recording.
    void read(const CameraBank& cameras, int index) const;

private:
    std::shared_ptr<const Camera> m_camera;
    DOCKEY m_key;
    CameraState m_state;
    Recording m_recording;
};

using SaveSources = std::vector<SaveSource>;

/// The connected cameras that have recorded something, in the order of their keys.
SaveSources saveSources(const CameraBank& cameras);
