#pragma once

#include "DOC_Lock.h"

class Camera;
struct DocContext;

/// The table's lock on a document.
class SimLock : public DOC_Lock {
public:
    SimLock(Camera& camera, const DocContext& context) : m_camera(camera), m_context(context) {}

    int getRecordState() const override;
    bool isParamLocked() const override;
    void setParamLock(bool lock) override;

private:
    Camera& m_camera;
    const DocContext& m_context;
};
