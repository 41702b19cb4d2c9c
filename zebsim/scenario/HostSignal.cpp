#include "HostSignal.h"

#include "EventWait.h"
#include "PLG_Interface.h"
#include "ScenarioError.h"

#include <QMetaMethod>

#include <atomic>
#include <memory>
#include <thread>

void raiseHostSignal(PLG_Interface& plugin, const QString& name, const QString& argument,
                     const std::function<bool()>& givenUp) {
    const QByteArray plain = name.toLatin1();
    const QMetaObject& meta = *plugin.metaObject();
    const auto isSignal = [&](const QByteArray& signature) {
        const int index = meta.indexOfMethod(signature);
        return index >= 0 && meta.method(index).methodType() == QMetaMethod::Signal;
    };
    if (isSignal(plain + "()")) {
        QMetaObject::invokeMethod(&plugin, plain, Qt::DirectConnection);
        return;
    }
    if (!isSignal(plain + "(QString)")) throw ScenarioError(QStringLiteral("the plug-in has no signal %1").arg(name));
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
