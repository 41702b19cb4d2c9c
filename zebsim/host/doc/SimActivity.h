#pragma once

#include "DOC_Activity.h"

class Camera;
struct DocContext;

/// What a document is busy with.
class SimActivity : public DOC_Activity {
public:
    SimActivity(Camera& camera, const DocContext& context) : m_camera(camera), m_context(context) {}

    bool isSuspendReduce() const override;
    bool isStopLive() const override;
    void refresh(bool force) override;

private:
    Camera& m_camera;
    const DocContext& m_context;
};
