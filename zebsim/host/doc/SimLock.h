#pragma once

#include "DOC_Lock.h"
#include "DocTopic.h"

/// The table's lock on a document.
class SimLock : public DocTopic<DOC_Lock> {
public:
    using DocTopic::DocTopic;

    int getRecordState() const override { return ask(OPERATION("getRecordState"), &CameraState::recordState); }
    bool isParamLocked() const override { return ask(OPERATION("isParamLocked"), &CameraState::locked); }
    void setParamLock(bool lock) override {
        Camera& camera = change(OPERATION("DOC_Lock::setParamLock"), {lock});
        const int recordState = camera.recordState();
        if (lock || (recordState != zeb::RecordReady && recordState != zeb::RecordRecording)) {
            camera.set(&CameraState::locked, lock);
        }
    }
};
