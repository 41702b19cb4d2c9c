#include "JS_Mediator_WrenDefaultSettingsDialog.h"

#include "BridgeCall.h"
#include "MasterChoice.h"

JS_Mediator_WrenDefaultSettingsDialog::JS_Mediator_WrenDefaultSettingsDialog(ZebHost* host, QObject* parent)
    : JS_Mediator_Dialog(host, QStringLiteral("wrendefaultsettingsdialog"), parent) {}

QString JS_Mediator_WrenDefaultSettingsDialog::getMasterCameraList() {
    return call(*this, Plain, __func__, {}, [this] { return masterCameraList(host()); });
}
