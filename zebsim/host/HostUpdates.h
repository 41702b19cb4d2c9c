#pragma once

#include "BridgeDesk.h"
#include "HostCalls.h"
#include "HostContext.h"
#include "UpdateCycle.h"

#include <QStringList>

class QWidget;

/// Whom an update cycle reaches: plug-ins, and pages that stand outside their dialogs. And the viewer's pauses. GUI
/// thread.
class HostUpdates {
public:
    explicit HostUpdates(const HostContext& host) : m_host(host) {}

    void attachBridge(QWebView* view, ZebPageBridge* bridge) { m_bridges.attach(view, bridge); }
    /// One cycle. No exception leaves it; a failure is told unless the cycle before has met it too.
    void runCycle();

    /// As `ZebHost` has them.
    void updateUI(unsigned int mask, bool refresh) {
        m_host.calls.note("ZebHost::updateUI", {mask, refresh});
        m_host.updates.request();
    }
    void deterUpdateUI(bool deter) {
        m_host.calls.note("ZebHost::deterUpdateUI", {deter});
        m_host.updates.deter(deter);
    }
    void refreshTools() {
        m_host.calls.change(OPERATION("ZebHost::refreshTools"));
        m_host.updates.request();
    }
    bool isViewerRunning() const { return m_suspended == 0; }
    void suspendViewer() {
        m_host.calls.note("ZebHost::suspendViewer");
        ++m_suspended;
    }
    void resumeViewer() {
        m_host.calls.note("ZebHost::resumeViewer");
        m_suspended = qMax(0, m_suspended - 1);
    }

private:
    void tellNew(const QStringList& failures);
    bool isInPluginDialog(const QWidget* widget) const;

    const HostContext& m_host;
    BridgeDesk m_bridges;
    int m_suspended = 0;
    /// What the last cycle met.
    QStringList m_failures;
};
