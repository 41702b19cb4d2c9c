#pragma once

#include "ZebRecorder.h"

class CameraBank;
class Journal;
class StatusFlags;

/// State of recording: as the flags tell, and without one the furthest state of the cameras asked about.
class SimRecorder : public ZebRecorder {
public:
    SimRecorder(Journal& journal, const CameraBank& cameras, const StatusFlags& flags)
        : m_journal(journal), m_cameras(cameras), m_flags(flags) {}

    int getRecStatus(const DocKeyList& keys) const override;
    int getRecordingState() const override;
    void startRecReady() override;
    void triggerRecording() override;
    void stopRecording() override;
    void cancelRecording(bool recording) override;
    bool isRecording() const override { return getRecordingState() == zeb::RecordRecording; }

private:
    Journal& m_journal;
    const CameraBank& m_cameras;
    const StatusFlags& m_flags;
};
