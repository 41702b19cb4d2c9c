#pragma once

#include "RecordParts.h"
#include "RecordingLosses.h"

#include <functional>
#include <optional>

class Clock;

/// A recording on the cameras of the host, from arming to its end. It moves on only when it is told to. GUI thread.
///
/// Where the cameras stand is their own `recordState`; here stands since when, and what the recording makes of them.
/// While cameras take a command, which may run an event loop, `proceed` does nothing and no other command may come;
/// `abandon` may.
class RecordRun {
public:
    /// Whom the run tells; none of them may work the run, and none may run an event loop.
    struct Listener {
        /// A camera has changed its state.
        std::function<void()> changed;
        /// Something went wrong, a line for each camera.
        std::function<void(const QString&)> failed;
        /// A recording that was triggered is over, whatever it has left; `ended` comes next.
        std::function<void()> shot;
        /// No camera takes part any more. `recorded`: at least one has something in its memory.
        std::function<void(bool recorded)> ended;
    };

    RecordRun(const CameraBank& cameras, CameraBatch& batch, const Clock& clock, const Translator& translator,
              Listener listener);

    /// The cameras that `arm` would take in.
    DocKeyList keysToArm();
    /// Arms the connected cameras that are at rest and takes in those that are armed already; one that records by
    /// itself is left alone. Those that fail are told of, the others go on. No effect while the recording runs.
    void arm();
    /// Triggers the cameras that are ready, all at this time of the clock. Those that are not take no part, and are
    /// told of. `withAreas`: they keep the record area alone. `sparesUnsaved`: nor do those that would record over
    /// images which nobody has saved and which were not in their way when they were armed here. No effect while none
    /// takes part or is ready.
    void trigger(bool withAreas, bool sparesUnsaved);
    /// Ends the recording of the cameras that take part; they keep what they have.
    void stop();
    /// Puts back to live the cameras that take part, and others that are armed or have failed. Those that record keep
    /// what they have, and what others have recorded stays.
    void cancel();
    /// The cameras are no more.
    void abandon();
    /// Does what was due up to this time of the clock: cameras become ready, fill their memory, or are missed, and so
    /// are those that take no part.
    void proceed();

    /// Cameras take a command.
    bool isCommanding() const { return m_commanding; }
    bool isRunning() const { return !m_parts.isEmpty(); }
    /// A `zeb::RecordStatus`, of the recording on those of these cameras that take part; live when none does.
    int statusOf(const DocKeyList& keys) const { return m_parts.statusOf(keys); }
    /// A line for each camera that has nothing of the last recording.
    const QStringList& lost() const { return m_losses.lost(); }

private:
    /// What each camera has said; nothing when the recording was abandoned meanwhile.
    std::optional<std::vector<CameraAnswer>> command(const HeldCameras& cameras, void (Camera::*give)());
    /// As `RecordParts::takeIn`, now.
    RecordPart& takeIn(const std::shared_ptr<Camera>& camera);
    void leaveBehind(const HeldCameras& late);
    void tellReasons(const std::vector<CameraAnswer>& answers);
    void drop(RecordPart& part, const CameraAnswer& answer);
    void proceedAll(qint64 now);
    void proceed(RecordPart& part, qint64 now);
    void followItsTrigger(RecordPart& part);
    void record(RecordPart& part, qint64 now);
    /// The camera takes no part any more and keeps nothing of this recording.
    void miss(RecordPart& part, RecordingLosses::Why why);
    /// The camera keeps what it has recorded until `now`, and takes no part any more.
    void end(RecordPart& part, qint64 now, int recordState);
    void enter(RecordPart& part, int recordState);
    /// Tells what has gathered.
    void tell();
    /// No part goes on.
    void finish();

    const CameraBank& m_cameras;
    CameraBatch& m_batch;
    const Clock& m_clock;
    const Listener m_listener;
    RecordParts m_parts;
    RecordingLosses m_losses;
    /// The run under way has had a trigger.
    bool m_triggered = false;
    bool m_changed = false;
    bool m_commanding = false;
    /// How often the cameras were replaced.
    int m_abandoned = 0;
};
