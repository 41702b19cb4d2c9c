#include "HostUpdates.h"

#include "HostEvents.h"
#include "HostMessages.h"
#include "SimAppStatus.h"
#include "ZebPageBridge.h"

#include <QDialog>
#include <QWebView>

void HostUpdates::runCycle() {
    QStringList failures;
    const auto guarded = [&failures](const auto& work) {
        try {
            work();
        } catch (const std::exception& e) {
            failures.append(QString::fromUtf8(e.what()));
        }
    };
    for (const QPointer<PLG_Interface> plugin : m_host.appStatus.plugins()) {
        if (plugin) {
            guarded([&] { plugin->updateDialog(m_host.appStatus.mode()); });
        }
    }
    for (const BridgeDesk::Attached& attached : m_bridges.loaded()) {
        // Each of them may take others with it.
        if (attached.view && attached.bridge && !isInPluginDialog(attached.view)) {
            guarded([&] { attached.bridge->raiseUpdate(); });
        }
    }
    tellNew(failures);
    const HostCalls::Own own;
    Q_EMIT m_host.events.updateFinished();
}

void HostUpdates::tellNew(const QStringList& failures) {
    for (const QString& text : failures) {
        if (!text.isEmpty() && !m_failures.contains(text)) {
            m_host.messages.notify(Message::Error, text);
        }
    }
    m_failures = failures;
}

bool HostUpdates::isInPluginDialog(const QWidget* widget) const {
    for (PLG_Interface* plugin : m_host.appStatus.plugins()) {
        const QDialog* dialog = plugin->getDialog(false);
        if (dialog && dialog->isAncestorOf(widget)) {
            return true;
        }
    }
    return false;
}
