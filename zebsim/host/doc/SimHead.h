#pragma once

#include "DOC_Head.h"

class Camera;

/// A document as a head of its device.
class SimHead : public DOC_Head {
public:
    explicit SimHead(Camera& camera) : m_camera(camera) {}

    unsigned int getFrameTotal(int mode, int head) const override;

private:
    Camera& m_camera;
};
