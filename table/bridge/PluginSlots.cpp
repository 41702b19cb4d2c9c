#include "BridgeCall.h"
#include "DocKeys.h"
#include "JS_Mediator_WrenTableDialog.h"
#include "PluginColumn.h"

void JS_Mediator_WrenTableDialog::togglePlugin(const QVariantList& keys, const QString& pluginName, bool enable) {
    call(*this, Change, __func__, {{"keys", keyText(keys)}, {"pluginName", pluginName}, {"enable", enable}},
         [&] { PluginColumn(host()).toggle(toDocKeys(keys), pluginName, enable); });
}

void JS_Mediator_WrenTableDialog::effectContextMenu(const QString& key, const QString& pluginName, int x, int y) {
    call(*this, Action, __func__, {{"key", key}, {"pluginName", pluginName}, {"x", x}, {"y", y}}, [&] {
        const DOCKEY docKey = toDocKeys({key}).value(0, zeb::NoDocKey);
        PluginColumn(host()).runMenu(docKey, pluginName, {x, y}, [this](const QVariant& entry) {
            afterCalls([this, entry] { deletePlugin(entry); });  // this call stands until the menu is gone
        });
    });
}

void JS_Mediator_WrenTableDialog::deletePlugin(const QVariant& pluginName) {
    const QVariantMap entry = pluginName.toMap();
    call(*this, Change, __func__,
         {{"dockey", entry.value(QStringLiteral("dockey"))}, {"plugin", entry.value(QStringLiteral("plugin"))}},
         [&] { PluginColumn(host()).remove(entry); });
}
