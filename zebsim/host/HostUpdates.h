#pragma once

#include "BridgeDesk.h"

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
    HostUpdates(const SimAppStatus& appStatus, HostEvents& events, HostMessages& messages)
        : m_appStatus(appStatus), m_events(events), m_messages(messages) {}

    void attachBridge(QWebView* view, ZebPageBridge* bridge) { m_bridges.attach(view, bridge); }
    /// One cycle. No exception leaves it; a failure is told unless the cycle before has met it too.
    void runCycle();

    /// Suspend and resume nest.
    bool isViewerRunning() const { return m_suspended == 0; }
    void suspendViewer() { ++m_suspended; }
    void resumeViewer() { m_suspended = qMax(0, m_suspended - 1); }

private:
    void tellNew(const QStringList& failures);
    bool isInPluginDialog(const QWidget* widget) const;

    const SimAppStatus& m_appStatus;
    HostEvents& m_events;
    HostMessages& m_messages;
    BridgeDesk m_bridges;
    int m_suspended = 0;
    /// What the last cycle met.
    QStringList m_failures;
};
