#pragma once

#include "DOC_Frames.h"
#include "Operation.h"

class Camera;
struct Recording;
struct DocContext;

/// Recorded frames of a document.
class SimFrames : public DOC_Frames {
public:
    SimFrames(Camera& camera, const DocContext& context) : m_camera(camera), m_context(context) {}

    unsigned int getFrameCount(int partition, int head) const override;
    int getFirstFrame(int partition, int head) const override;
    int getLastFrame(int partition, int head) const override;
    int getTriggerFrame(int head) const override;
    int getSelectStartFrame(int head) const override;
    int getSelectEndFrame(int head) const override;
    bool isPlaying() const override;
    bool isRecordCheck() const override;
    void setRecordCheck(bool check) override;
    bool isFrameSkipEnabled() const override;
    void setFrameSkipEnabled(bool enabled) override;
    void setFrameSkipMode(int mode) override;
    int getFrameSkip() const override;
    void setFrameSkip(int frames) override;
    void setRecordAreaStart(int frame) override;
    void setRecordAreaEnd(int frame) override;

private:
    /// All zero when nothing is recorded.
    Recording ask(CameraOperation operation) const;

    Camera& m_camera;
    const DocContext& m_context;
};
