#pragma once

#include "DOC_Frames.h"
#include "DocTopic.h"

/// Recorded frames of a document.
class SimFrames : public DocTopic<DOC_Frames> {
public:
    using DocTopic::DocTopic;

    unsigned int getFrameCount(int partition, int head) const override;
    zeb::RecordedData getRecordedData(PARTITIONNUMBER partition) const override;
    int getFirstFrame(int, int) const override { return askRecording(OPERATION("getFirstFrame")).first; }
    int getLastFrame(int, int) const override { return askRecording(OPERATION("getLastFrame")).last; }
    int getTriggerFrame(int) const override { return askRecording(OPERATION("getTriggerFrame")).zero; }
    int getSelectStartFrame(int) const override { return askRecording(OPERATION("getSelectStartFrame")).selectedFirst; }
    int getSelectEndFrame(int) const override { return askRecording(OPERATION("getSelectEndFrame")).selectedLast; }
    bool isPlaying() const override { return ask(OPERATION("isPlaying"), &CameraState::playing); }
    bool isRecordCheck() const override { return ask(OPERATION("isRecordCheck"), &CameraState::recordCheck); }
    void setRecordCheck(bool check) override {
        change(OPERATION("DOC_Frames::setRecordCheck"), {check}).set(&CameraState::recordCheck, check);
    }
    bool isFrameSkipEnabled() const override {
        return ask(OPERATION("isFrameSkipEnabled"), &CameraState::frameSkipEnabled);
    }
    void setFrameSkipEnabled(bool enabled) override {
        change(OPERATION("DOC_Frames::setFrameSkipEnabled"), {enabled}).set(&CameraState::frameSkipEnabled, enabled);
    }
    void setFrameSkipMode(int mode) override {
        change(OPERATION("DOC_Frames::setFrameSkipMode"), {mode}).set(&CameraState::frameSkipMode, mode);
    }
    int getFrameSkip() const override { return ask(OPERATION("getFrameSkip"), &CameraState::frameSkip); }
    void setFrameSkip(int frames) override {
        change(OPERATION("DOC_Frames::setFrameSkip"), {frames}).set(&CameraState::frameSkip, frames);
    }
    void setRecordAreaStart(int frame) override;
    void setRecordAreaEnd(int frame) override;

private:
    /// All zero when nothing is recorded.
    Recording askRecording(CameraOperation operation) const {
        return askConnected(operation).recording().value_or(Recording());
    }
};
