#pragma once

#include "RecordRun.h"
#include "ZebRecorder.h"

#include <QObject>

#include <optional>

struct HostContext;

/// The recording on the host's cameras. Its end comes from the event loop: plug-ins get their signal, and the host goes
/// into memory mode when something was recorded. Whoever presses before has meant the recording that has just ended:
/// then the end comes at once, and the press does nothing else.
class SimRecorder : public ZebRecorder {
public:
    explicit SimRecorder(const HostContext& host);

    int getRecStatus(const DocKeyList& keys) const override;
    int getRecordingState() const override;
    bool isRecording() const override;
    /// Asks first when cameras would record over images that nobody has saved. When that is refused nothing is armed,
    /// and plug-ins hear that the recording is at its end.
    void startRecReady() override;
    /// During a trigger test nothing records, and a notice tells that the trigger has come.
    void triggerRecording() override;
    void stopRecording() override;
    void cancelRecording(bool recording) override;

    /// As `getRecordingState` and `getRecStatus`, for the host itself. Recording until the end is told; else as the
    /// flags tell, and without one as the cameras that take part stood when the recording was last brought up to the
    /// clock: a question alone ends nothing.
    int state() const;
    int stateOf(const DocKeyList& keys) const;
    /// Whether a recording that the host has begun is under way, or its end not told yet.
    bool isRunning() const { return m_owedEnd.has_value() || m_run.isRunning(); }
    /// Whether a connected camera is armed or records, in that recording or by itself.
    bool isUnderWay() const;
    /// A line for each camera that has nothing of the last recording.
    const QStringList& lost() const { return m_run.lost(); }

    /// The host's own record key: arms, triggers or stops, as the state is. Only in live mode.
    void press();
    /// The host's own cancel, after which plug-ins get their signal too.
    void cancel();
    /// Brings the recording up to the clock; called often.
    void proceed() { m_run.proceed(); }
    /// The cameras are replaced.
    void abandon() { m_run.abandon(); }

private:
    void arm();
    void trigger();
    void stop();
    /// False when the recording had ended already.
    bool endByCancel();
    bool isBusy();
    /// Whether the recording has ended and nobody knew yet; they do now.
    bool hasEnded();
    void deliverEnd();
    /// Of the connected cameras.
    bool isAny(const std::function<bool(const Camera&)>& wanted) const;

    const HostContext& m_host;
    RecordRun m_run;
    /// An end that is still to be told, and whether something was recorded.
    std::optional<bool> m_owedEnd;
    /// The end is delivered to it, in a later turn of the event loop.
    QObject m_receiver;
};
