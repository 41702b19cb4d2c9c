#include "HostSignal.h"

#include "EventWait.h"
#include "PLG_Interface.h"
#include "PluginSignal.h"
#include "ScenarioError.h"

#include <atomic>
#include <memory>
#include <thread>

void raiseHostSignal(PLG_Interface& plugin, const QString& name, const QString& argument,
                     const std::function<bool()>& givenUp) {
    const QByteArray plain = name.toLatin1();
    if (raisePluginSignal(plugin, plain)) {
        return;
    }
    if (!hasPluginSignal(plugin, plain + "(QString)")) {
        throw ScenarioError(QStringLiteral("the plug-in has no signal %1").arg(name));
    }
    // Shared with the thread, which may outlive this call.
    const auto served = std::make_shared<std::atomic<bool>>(false);
    std::thread raiser([served, plain, argument, plugin = &plugin] {
        QMetaObject::invokeMethod(plugin, plain, Qt::DirectConnection, Q_ARG(QString, argument));
        *served = true;
    });
    if (waitUntil([&] { return served->load(); }, givenUp)) {
        raiser.join();
        return;
    }
    // It waits for this thread, so nobody must wait for it.
    raiser.detach();
    throw ScenarioError(QStringLiteral("nobody has served the signal %1").arg(name));
}
