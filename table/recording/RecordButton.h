#pragma once

#include "ZebTypes.h"

#include <QPointer>
#include <QWidget>

class GatheredFailures;
class JS_Mediator;
class ZebHost;
struct TableState;

/// The buttons of recording: arm all connected cameras, trigger, stop, cancel. GUI thread.
///
/// All may throw what the host throws, and run an event loop while they ask the user. A camera that does not answer is
/// named: before the arming as one that is not locked or has a problem, afterwards as one that goes on without a
/// setting.
class RecordButton {
public:
    /// `bridge` of the page that has the button. `parent` of the questions; null is the host's main window.
    RecordButton(JS_Mediator& bridge, ZebHost& host, TableState& state, QWidget* parent)
        : m_bridge(bridge), m_host(host), m_state(state), m_parent(parent) {}

    /// By the state of the recording it arms, triggers or stops. Before it arms it looks whether every camera is locked
    /// and fit, asks the user what to do with the problems, and puts the cameras on the common signal.
    void press();
    void cancel();

private:
    /// Without those that do not tell whether they are connected.
    DocList connected(GatheredFailures& failures) const;
    /// Whether the cameras still wait for the button, after a question or the like.
    bool canArm() const;
    bool areCamerasLocked();
    bool userTakesProblems();
    QStringList problems();
    bool prepareSignal(GatheredFailures& failures);
    void setAreas(GatheredFailures& failures);
    void arm();
    void tell(const GatheredFailures& failures);

    JS_Mediator& m_bridge;
    ZebHost& m_host;
    TableState& m_state;
    const QPointer<QWidget> m_parent;
    /// Failures that the user has been told of by the problems.
    QStringList m_told;
};
