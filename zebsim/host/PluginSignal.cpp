#include "PluginSignal.h"

#include "SimAppStatus.h"

#include <QDialog>
#include <QMetaMethod>

bool hasPluginSignal(const PLG_Interface& plugin, const QByteArray& signature) {
    const QMetaObject& meta = *plugin.metaObject();
    const int index = meta.indexOfMethod(signature);
    return index >= 0 && meta.method(index).methodType() == QMetaMethod::Signal;
}

bool raisePluginSignal(PLG_Interface& plugin, const QByteArray& name) {
    return hasPluginSignal(plugin, name + "()") &&
           QMetaObject::invokeMethod(&plugin, name.constData(), Qt::DirectConnection);
}

void sendToPlugins(const SimAppStatus& status, const QByteArray& name) {
    // What a plug-in does then may take another away.
    for (const QPointer<PLG_Interface> plugin : status.plugins()) {
        if (plugin) {
            raisePluginSignal(*plugin, name);
        }
    }
}

bool sendToActivePlugin(const SimAppStatus& status, const QByteArray& name) {
    for (PLG_Interface* plugin : status.plugins()) {
        const QDialog* dialog = plugin->getDialog(false);
        if (dialog && dialog->isActiveWindow()) {
            return raisePluginSignal(*plugin, name);
        }
    }
    return false;
}
