#pragma once

#include "DOC_Activity.h"
#include "DocTopic.h"

/// What a document is busy with.
class SimActivity : public DocTopic<DOC_Activity> {
public:
    using DocTopic::DocTopic;

    bool isSuspendReduce() const override { return ask(OPERATION("isSuspendReduce"), &CameraState::suspendReduce); }
    bool isStopLive() const override { return ask(OPERATION("isStopLive"), &CameraState::stopLive); }
    void refresh(bool force) override { changeConnected(OPERATION("DOC_Activity::refresh"), {force}); }
};
