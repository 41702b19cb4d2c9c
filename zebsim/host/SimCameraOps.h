#pragma once

#include "ZebCameraOps.h"

#include <functional>

class Camera;
class CameraBank;
class Journal;

/// Operations on many cameras: each one is tried, and the failures come as one exception.
class SimCameraOps : public ZebCameraOps {
public:
    SimCameraOps(Journal& journal, CameraBank& cameras);

    void setRecordRate(const DocList& docs, unsigned int rate) override;

private:
    static DocKeyList keysOf(const DocList& docs);
    void forEach(const DocKeyList& keys, const std::function<void(Camera&)>& work);

    Journal& m_journal;
    CameraBank& m_cameras;
};
