#pragma once

#include "DOC_Frames.h"

class Camera;
struct DocContext;

/// Recorded frames of a document.
class SimFrames : public DOC_Frames {
public:
    SimFrames(Camera& camera, const DocContext& context) : m_camera(camera), m_context(context) {}

    unsigned int getFrameCount(int partition, int head) const override;
    bool isRecordCheck() const override;
    void setRecordCheck(bool check) override;

private:
    Camera& m_camera;
    const DocContext& m_context;
};
