#include "JS_Mediator_WrenDefaultSettingsDialog.h"

#include "BridgeCall.h"
#include "MasterChoice.h"
#include "ZebHost.h"

#include <utility>

JS_Mediator_WrenDefaultSettingsDialog::JS_Mediator_WrenDefaultSettingsDialog(ZebHost* host, QObject* parent)
    : JS_Mediator_Dialog(host, QStringLiteral("wrendefaultsettingsdialog"), parent) {}

QString JS_Mediator_WrenDefaultSettingsDialog::getMasterCameraList() {
    return call(*this, Plain, __func__, {}, [this] { return masterCameraList(host()); });
}

void JS_Mediator_WrenDefaultSettingsDialog::ok() {
    call(*this, Plain, __func__, {}, [this] { Q_EMIT accept(); });
}

void JS_Mediator_WrenDefaultSettingsDialog::cancel() {
    call(*this, Plain, __func__, {}, [this] { Q_EMIT reject(); });
}

void JS_Mediator_WrenDefaultSettingsDialog::resetSortTable() {
    static constexpr std::pair<int, const char*> Tabs[] = {{0, "cameraInfo"},  {1, "livecontrol"}, {3, "irig"},
                                                           {2, "sync"},        {4, "plugin"},      {5, "memoryInfo"},
                                                           {6, "memoryPlugin"}};
    call(*this, Plain, __func__, {}, [this] {
        for (const auto& [tab, name] : Tabs) {
            host().setPrefString(QLatin1String("wren/column_order/") % QLatin1String(name),
                                 host().getDefaultColumnOrder(tab));
        }
    });
}
