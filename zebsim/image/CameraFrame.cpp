#include "CameraFrame.h"

#include "CameraState.h"
#include "Recording.h"

bool CameraFrame::operator==(const CameraFrame& other) const {
    return camera == other.camera && resolution == other.resolution && number == other.number && time == other.time &&
           noise == other.noise && effects == other.effects && hasTexts == other.hasTexts &&
           pictures == other.pictures && memoryFrame == other.memoryFrame;
}

CameraFrame CameraFrame::live(const CameraState& state, const SensorNoise& noise, qint64 now) {
    return {state.name, state.resolution, now * state.rate / 1000, now * 1000, noise, effectsOf(state, zeb::LiveMode)};
}

CameraFrame CameraFrame::recorded(const CameraState& state, const SensorNoise& noise, const Recording& recording,
                                  int frame) {
    const qint64 number = qint64(frame) - recording.zero;
    const qint64 time = recording.rate > 0 ? number * 1000000 / recording.rate : 0;
    const FrameEffects effects = effectsOf(state, recording.pictures ? zeb::FileMode : zeb::MemoryMode);
    return {state.name, recording.resolution, number, time, noise, effects, true, recording.pictures, frame};
}
