#pragma once

#include "RecordSettings.h"
#include "ZebTypes.h"

#include <QMap>
#include <QSet>
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
        /// A recording that was triggered is over, whatever it has left; `ended` comes next.
        std::function<void()> shot;
        /// No camera takes part any more. `recorded`: at least one has something in its memory.
        std::function<void(bool recorded)> ended;
        /// A text in the user's language.
        std::function<QString(const QString&)> translate;
    };

    RecordRun(const CameraBank& cameras, const Clock& clock, Listener listener);
    ~RecordRun();

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

    bool isUnderWay() const { return !m_parts.empty(); }
    /// A `zeb::RecordStatus`, of the recording on those of these cameras that take part; live when none does.
    int statusOf(const DocKeyList& keys) const;
    /// A line for each camera that has nothing of the last recording.
    const QStringList& lost() const { return m_lost; }

private:
    struct Part {
        std::shared_ptr<Camera> camera;
        RecordSettings settings;
        /// In use when the camera was taken in, and from the trigger on the one that it records into.
        PARTITIONNUMBER partition = 1;
        qint64 readyAt = 0;
        qint64 triggeredAt = 0;
        bool triggered = false;
        bool over = false;
    };

    using Cameras = std::vector<std::shared_ptr<Camera>>;

    Cameras camerasIn(const std::function<bool(int state)>& wanted) const;
    Cameras camerasOf(const std::function<bool(const Part& part)>& wanted) const;
    Cameras camerasToArm();
    Part* findPart(const Camera& camera);
    Part& takeIn(const std::shared_ptr<Camera>& camera);
    /// All that take part have had their trigger.
    bool isRecording() const;
    QStringList commandAll(const Cameras& cameras, void (Camera::*command)());
    /// It holds, where it would record, what nobody has agreed to lose by arming it.
    bool wouldLoseUnsaved(const Camera& camera);
    void begin(Part& part, bool withAreas);
    void leaveBehind(const Cameras& late);
    void drop(Part& part, const QString& reason);
    void proceed(Part& part, qint64 now);
    void followItsTrigger(Part& part);
    void record(Part& part, qint64 now);
    void missOthers();
    /// One that nobody works with and that holds nothing is not missed.
    void tellGone(const Camera& camera);
    /// The camera takes no part any more and keeps nothing of this recording. `why` has its place for the name.
    void miss(Part& part, const QString& why);
    /// What the user is told now, and again at a save.
    void lose(const Camera& camera, const QString& line);
    void addFailures(const QStringList& reasons);
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
    /// Of the run under way, by the camera's key, and of the last one that was triggered.
    QMap<DOCKEY, QString> m_losses;
    QStringList m_lost;
    /// Cameras that are gone, which has been told.
    QSet<DOCKEY> m_vanished;
    /// The run under way has had a trigger.
    bool m_triggered = false;
    bool m_changed = false;
};
