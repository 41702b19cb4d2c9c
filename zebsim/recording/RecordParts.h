#pragma once

#include "CameraBatch.h"
#include "RecordPart.h"

#include <functional>

class CameraBank;

/// The cameras that take part in a recording, and those that have taken part in it. GUI thread.
class RecordParts {
public:
    /// Must outlive the object.
    explicit RecordParts(const CameraBank& cameras) : m_cameras(cameras) {}

    /// Null when the camera takes no part and has taken none.
    RecordPart* find(const Camera& camera);
    const RecordPart* find(const Camera& camera) const { return const_cast<RecordParts*>(this)->find(camera); }
    /// The camera takes part from `now` on, whatever has become of it before. The answer is good until the next one.
    RecordPart& takeIn(const std::shared_ptr<Camera>& camera, qint64 now);
    void clear() { m_parts.clear(); }

    bool isEmpty() const { return m_parts.empty(); }
    std::vector<RecordPart>::iterator begin() { return m_parts.begin(); }
    std::vector<RecordPart>::iterator end() { return m_parts.end(); }

    /// All that take part have had their trigger.
    bool areTriggered() const;
    bool areOver() const;
    /// One at least has something in its memory.
    bool isAnyKept() const;
    /// It holds, where it would record, what nobody has agreed to lose by arming it.
    bool wouldLoseUnsaved(const Camera& camera) const;
    /// The connected cameras that are so, whether or not they take part.
    HeldCameras connected(const std::function<bool(const Camera& camera)>& are) const;
    /// Those that an arming takes in, armed ones among them; none once all have had their trigger.
    HeldCameras toArm() const;
    HeldCameras toStop() const;
    /// With others that are armed or have failed.
    HeldCameras toCancel() const;
    /// A `zeb::RecordStatus`, of those of these cameras that take part; live when none does.
    int statusOf(const DocKeyList& keys) const;

private:
    HeldCameras camerasOf(const std::function<bool(const RecordPart& part)>& wanted) const;

    const CameraBank& m_cameras;
    std::vector<RecordPart> m_parts;
};
