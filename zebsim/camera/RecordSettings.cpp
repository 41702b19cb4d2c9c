#include "RecordSettings.h"

#include "CameraModel.h"

#include <algorithm>

RecordSettings RecordSettings::of(const CameraState& state, const CameraModel& model) {
    RecordSettings settings;
    settings.mode = state.triggerMode;
    settings.capacity = static_cast<int>(model.frameCapacity(state));
    settings.rate = std::max(1U, state.rate);
    settings.shutter = state.shutter;
    settings.resolution = state.resolution;
    settings.triggerFrame = state.triggerFrame;
    settings.randomFrames = state.randomFrames;
    // The other random modes know no choice.
    const bool isPhased = settings.mode == zeb::TriggerRandom || settings.mode == zeb::TriggerRandomReset;
    settings.randomTimes = isPhased && !state.randomCounted ? 0 : state.randomTimes;
    settings.area = state.recordArea;
    return settings;
}

int RecordSettings::framesBefore() const {
    const int most = std::max(0, capacity - 1);
    const int manual = std::clamp(capacity - triggerFrame, 0, most);
    switch (mode) {
        case zeb::TriggerEnd:
            return most;
        case zeb::TriggerCenter:
        case zeb::TriggerTwostage:
        case zeb::TriggerTwostageHalf:
            return capacity / 2;
        case zeb::TriggerTwostageQuarter:
            return capacity / 4;
        case zeb::TriggerTwostageOneeighth:
            return capacity / 8;
        case zeb::TriggerManual:
            return manual;
        case zeb::TriggerRandomCenter:
            return randomGroup() / 2;
        case zeb::TriggerRandomManual:
            return capacity > 0 ? static_cast<int>(qint64(randomGroup()) * manual / capacity) : 0;
        default:
            return 0;
    }
}

int RecordSettings::framesAfter() const {
    switch (mode) {
        case zeb::TriggerRandom:
        case zeb::TriggerRandomReset:
        case zeb::TriggerRandomCenter:
        case zeb::TriggerRandomManual:
        case zeb::TriggerRandomLoop:
            return randomTotal() - framesBefore();
        default:
            return capacity - framesBefore();
    }
}

int RecordSettings::randomGroup() const {
    return randomFrames > 0 ? std::min(randomFrames, capacity) : capacity;
}

int RecordSettings::randomTotal() const {
    const int group = randomGroup();
    const int fitting = group > 0 ? capacity / group : 0;
    return group * (randomTimes > 0 ? std::min(randomTimes, fitting) : fitting);
}

qint64 RecordSettings::framesIn(qint64 ms) const {
    return ms * rate / 1000;
}

qint64 RecordSettings::duration() const {
    return (qint64(framesAfter()) * 1000 + rate - 1) / rate;
}

std::optional<Recording> RecordSettings::recording(qint64 ready, qint64 recorded) const {
    if (framesAfter() < 1) {
        return std::nullopt;
    }
    const auto before = std::clamp<qint64>(framesIn(ready), 0, framesBefore());
    const auto after = std::clamp<qint64>(framesIn(recorded), 1, framesAfter());
    qint64 first = 0;
    qint64 last = before + after - 1;
    if (!area.isNull() && area.x() <= area.y()) {
        first = std::max(first, before + area.x());
        last = std::min(last, before + area.y());
    }
    if (first > last) {
        return std::nullopt;
    }
    Recording recording;
    recording.rate = rate;
    recording.shutter = shutter;
    recording.resolution = resolution;
    recording.trigger = static_cast<int>(before);
    recording.first = recording.selectedFirst = static_cast<int>(first);
    recording.last = recording.selectedLast = static_cast<int>(last);
    return recording;
}
