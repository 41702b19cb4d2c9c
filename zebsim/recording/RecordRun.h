#pragma once

#include "ZebTypes.h"
#include "camera/RecordSettings.h"

#include <QStringList>

#include <functional>
#include <memory>
#include <vector>

class Camera;
class CameraBank;
class Clock;

/// A recording on the cameras of the host, from arming to its end. It moves on only when it is told to. GUI thread.
///
/// Where the cameras stand is their own `recordState`; here stands since when, and what the recording makes of them.
class RecordRun {
public:
    /// Whom the run tells; none of them may work the run, and none may run an event loop.
    struct Listener {
        /// A camera has changed its state.
        std::function<void()> changed;
        /// Something went wrong, a line for each camera.
        std::function<void(const QString&)> failed;
        /// No camera takes part any more. `recorded`: at least one has something in its memory.
        std::function<void(bool recorded)> ended;
        /// A text in the user's language.
        std::function<QString(const QString&)> translate;
    };

    RecordRun(const CameraBank& cameras, const Clock& clock, Listener listener);
    ~RecordRun();

    /// Arms the connected cameras that are not under way. Those that fail are told of, the others go on.
    void arm();
    /// Triggers the cameras that are ready, all at this time of the clock. `withAreas`: they keep the record area
    /// alone.
    void trigger(bool withAreas);
    /// Ends the recording of the cameras that record; they keep what they have.
    void stop();
    /// Puts all cameras back to live. Those that record keep what they have, and what others have recorded stays.
    void cancel();
    /// The cameras are no more.
    void abandon();
    /// Does what was due up to this time of the clock: cameras become ready, fill their memory, or are missed.
    void proceed();
    /// A line for each camera that has nothing of the last recording in which others have something.
    const QStringList& lost() const { return m_lost; }

private:
    struct Part {
        std::shared_ptr<Camera> camera;
        RecordSettings settings;
        qint64 readyAt = 0;
        qint64 triggeredAt = 0;
        bool triggered = false;
        bool over = false;
    };

    using Cameras = std::vector<std::shared_ptr<Camera>>;

    Cameras camerasIn(const std::function<bool(int state)>& wanted) const;
    Part& partOf(const std::shared_ptr<Camera>& camera);
    QStringList commandAll(const Cameras& cameras, void (Camera::*command)());
    void drop(Part& part, const QString& reason);
    void proceed(Part& part, qint64 now);
    void record(Part& part, qint64 now);
    /// The camera takes no part any more and keeps nothing of this recording. `why` has its place for the name.
    void miss(Part& part, const QString& why);
    /// The camera keeps what it has recorded until `now`, and takes no part any more.
    void end(Part& part, qint64 now, int recordState);
    void enter(Part& part, int recordState);
    /// Tells what has gathered.
    void tell();
    /// No part goes on.
    void finish();

    const CameraBank& m_cameras;
    const Clock& m_clock;
    const Listener m_listener;
    std::vector<Part> m_parts;
    QStringList m_failures;
    /// Of the run under way, and of the last one that left something.
    QStringList m_losses;
    QStringList m_lost;
    bool m_changed = false;
};
