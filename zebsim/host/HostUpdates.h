#pragma once

#include "BridgeDesk.h"
#include "HostCalls.h"
#include "UpdateCycle.h"

#include <QStringList>

class HostEvents;
class HostMessages;
class QWidget;
class SimAppStatus;

/// Whom an update cycle reaches: plug-ins, and pages that stand outside their dialogs. And the viewer's pauses. GUI
/// thread.
class HostUpdates {
public:
    /// All must outlive the object.
    HostUpdates(const HostCalls& calls, UpdateCycle& cycle, const SimAppStatus& appStatus, HostEvents& events,
                HostMessages& messages)
        : m_calls(calls), m_cycle(cycle), m_appStatus(appStatus), m_events(events), m_messages(messages) {}

    void attachBridge(QWebView* view, ZebPageBridge* bridge) { m_bridges.attach(view, bridge); }
    /// One cycle. No exception leaves it; a failure is told unless the cycle before has met it too.
    void runCycle();

    /// As `ZebHost` has them.
    void updateUI(unsigned int mask, bool refresh) {
        m_calls.note("ZebHost::updateUI", {mask, refresh});
        m_cycle.request();
    }
    void deterUpdateUI(bool deter) {
        m_calls.note("ZebHost::deterUpdateUI", {deter});
        m_cycle.deter(deter);
    }
    void refreshTools() {
        m_calls.change(OPERATION("ZebHost::refreshTools"));
        m_cycle.request();
    }
    bool isViewerRunning() const { return m_suspended == 0; }
    void suspendViewer() {
        m_calls.note("ZebHost::suspendViewer");
        ++m_suspended;
    }
    void resumeViewer() {
        m_calls.note("ZebHost::resumeViewer");
        m_suspended = qMax(0, m_suspended - 1);
    }

private:
    void tellNew(const QStringList& failures);
    bool isInPluginDialog(const QWidget* widget) const;

    const HostCalls& m_calls;
    UpdateCycle& m_cycle;
    const SimAppStatus& m_appStatus;
    HostEvents& m_events;
    HostMessages& m_messages;
    BridgeDesk m_bridges;
    int m_suspended = 0;
    /// What the last cycle met.
    QStringList m_failures;
};
