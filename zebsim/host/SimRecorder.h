#pragma once

#include "ZebRecorder.h"

class CameraBank;
class StatusFlags;

/// State of recording: as the flags tell, and without one the furthest state of the cameras asked about.
class SimRecorder : public ZebRecorder {
public:
    SimRecorder(const CameraBank& cameras, const StatusFlags& flags) : m_cameras(cameras), m_flags(flags) {}

    int getRecStatus(const DocKeyList& keys) const override;
    int getRecordingState() const override;
    bool isRecording() const override { return getRecordingState() == zeb::RecordRecording; }

private:
    const CameraBank& m_cameras;
    const StatusFlags& m_flags;
};
