#pragma once

#include "ZebCameraOps.h"

#include <functional>
#include <vector>

class Camera;
class CameraBank;
class Journal;
class StatusFlags;
class ZebDocManager;

/// Operations on many cameras: each one is tried, and the failures come as one exception.
class SimCameraOps : public ZebCameraOps {
public:
    SimCameraOps(Journal& journal, CameraBank& cameras, const ZebDocManager& docs, const StatusFlags& flags);

    void setRecordRate(const DocList& docs, unsigned int rate) override;
    void setPartition(PARTITIONNUMBER number, int mode) override;
    unsigned int getCurrentVariable() const override;
    void setVariable(unsigned int channel) override;
    void stopForPrefs() override;
    bool isLowlight() const override;
    bool existLowlight() const override;
    bool isAllLowlight(bool on) const override;
    bool isLensCalibration() const override;
    bool isDirectSaving(int mode) const override;
    bool isAllWrenLockDevice() const override;

private:
    static DocKeyList keysOf(const DocList& docs);
    void forEach(const DocKeyList& keys, const std::function<void(Camera&)>& work);
    std::vector<Camera*> connectedCameras() const;

    Journal& m_journal;
    CameraBank& m_cameras;
    const ZebDocManager& m_docs;
    const StatusFlags& m_flags;
};
