#include "FrameMetadata.h"

#include "CameraState.h"
#include "Recording.h"

FrameMetadata FrameMetadata::live(const CameraState& state, const CameraFrame& frame) {
    return {frame.camera, state.rate, state.shutter, {frame.number, {}}, {}, state.customInfo};
}

FrameMetadata FrameMetadata::recorded(const Recording& recording, const CameraFrame& frame) {
    const qint64 fromTrigger = frame.number + recording.zero - recording.trigger;
    const qint64 time = recording.rate > 0 ? fromTrigger * 1000000 / recording.rate : 0;
    return {frame.camera, recording.rate, recording.shutter, {frame.number, time}, {}, recording.customInfo};
}
