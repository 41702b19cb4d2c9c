#include "HeldRecordings.h"

#include "Camera.h"
#include "CameraBank.h"

#include <algorithm>
#include <iterator>

namespace {

template <typename Lost>
HeldRecordings unsaved(const HeldRecordings& held, Lost isLost) {
    HeldRecordings lost;
    std::copy_if(held.begin(), held.end(), std::back_inserter(lost),
                 [&](const HeldRecording& one) { return !one.recording.saved && isLost(one); });
    return lost;
}

}  // namespace

HeldRecordings heldRecordings(const CameraBank& cameras, const DocKeyList& toArm) {
    HeldRecordings held;
    for (const Camera* camera : cameras.known()) {
        const bool isDivided = camera->get(&CameraState::partitions) > 1;
        const PARTITIONNUMBER current = camera->get(&CameraState::partition);
        for (const Recording& recording : camera->recordings()) {
            const bool isInTheWay = recording.partition == current && toArm.contains(camera->key());
            held.push_back({cameras.labelOf(*camera), isDivided, isInTheWay, recording});
        }
    }
    return held;
}

HeldRecordings lostByRecording(const HeldRecordings& held) {
    return unsaved(held, [](const HeldRecording& one) { return one.isInTheWay; });
}

HeldRecordings lostByClosing(const HeldRecordings& held) {
    return unsaved(held, [](const HeldRecording& one) { return one.recording.serial > 0; });
}
