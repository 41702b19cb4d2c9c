#include "Recording.h"

#include "CameraModel.h"
#include "CameraState.h"

#include <algorithm>

namespace {

/// A range stands as first and last.
QPoint orWhole(const QPoint& range, const QPoint& whole) {
    return range.x() > range.y() ? whole : range;
}

}  // namespace

std::optional<Recording> Recording::of(const CameraState& state, const CameraModel& model) {
    const auto capacity = static_cast<int>(model.frameCapacity(state));
    if (!state.recorded || capacity == 0) {
        return std::nullopt;
    }
    const QPoint range = orWhole(state.recordedRange, {0, capacity - 1});
    const QPoint selected = orWhole(state.selectedRange, range);
    Recording recording;
    recording.rate = state.recordedRate != 0 ? state.recordedRate : state.rate;
    recording.shutter = state.recordedShutter != 0 ? state.recordedShutter : state.shutter;
    recording.resolution = state.recordedResolution.isEmpty() ? state.resolution : state.recordedResolution;
    recording.first = range.x();
    recording.last = range.y();
    recording.trigger = state.recordedTrigger;
    recording.zero = state.triggerOffsetEnabled ? state.triggerOffset : state.recordedTrigger;
    recording.serial = state.serial;
    recording.shoot = state.shoot;
    recording.selectedFirst = std::clamp(selected.x(), range.x(), range.y());
    recording.selectedLast = std::clamp(selected.y(), range.x(), range.y());
    recording.saved =
        std::any_of(state.savedRanges.begin(), state.savedRanges.end(), [&recording](const QPoint& frames) {
            return frames.x() <= recording.selectedFirst && recording.selectedLast <= frames.y();
        });
    recording.customInfo = state.recordedCustomInfo;
    recording.partition = state.partition;
    recording.pictures = state.pictures;
    return recording;
}
