#include "BridgeCall.h"
#include "CustomInformation.h"
#include "DocKeys.h"
#include "JS_Mediator_WrenTableDialog.h"

QString JS_Mediator_WrenTableDialog::getCustomSettings(const QVariant& key, bool withoutRecId) {
    return call(*this, Plain, __func__, {}, [&] {
        return CustomInformation(host()).listOf(toDocKeys({key}).value(0, zeb::NoDocKey), !withoutRecId);
    });
}

void JS_Mediator_WrenTableDialog::setCustomSettings(const QVariantList& keys, const QString& json) {
    call(*this, Change, __func__, {{"keys", keyText(keys)}},
         [&] { CustomInformation(host()).setLists(toDocKeys(keys), json); });
}

QString JS_Mediator_WrenTableDialog::loadCustomSettingsXml() {
    QString list = QStringLiteral("[]");
    call(*this, Action, __func__, {}, [&] { list = CustomInformation(host()).read(tableWindow()); });
    return list;
}

void JS_Mediator_WrenTableDialog::saveCustomSettingsXml(const QString& json) {
    call(*this, Change, __func__, {}, [&] { CustomInformation(host()).write(tableWindow(), json); });
}
