#include "host/PluginSignal.h"

#include "PLG_Interface.h"

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
