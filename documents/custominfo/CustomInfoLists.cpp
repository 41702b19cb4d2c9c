#include "CustomInfoLists.h"

#include "DOC_Control.h"
#include "DOC_Interface.h"
#include "GatheredFailures.h"
#include "LogFailure.h"
#include "TextKey.h"
#include "ZebHost.h"

namespace {

void fill(DOC_Control& control, const QList<QVariantMap>& items) {
    control.clearCustomInfo();
    for (const QVariantMap& item : items) {
        customitem::addTo(control, item);
    }
}

}  // namespace

QString customitem::text(const QVariantMap& item, const char* key) {
    return item.value(QLatin1String(key)).toString();
}

bool customitem::isOn(const QVariantMap& item, const char* key) {
    const QVariant flag = item.value(QLatin1String(key));
    return flag.type() == QVariant::Bool ? flag.toBool() : flag == QLatin1String("on");
}

void customitem::addTo(DOC_Control& control, const QVariantMap& item) {
    control.addCustomInfo(text(item, "name"), text(item, "value"), text(item, "unit"), isOn(item, "display"),
                          isOn(item, "usefilename"));
}

void replaceCustomInfo(ZebHost& host, DOC_Interface& doc, const QList<QVariantMap>& items) {
    const QString camera = doc.control().getCameraName(0);
    const QList<QVariantMap> before = doc.control().getCustomInfoList();
    GatheredFailures failures;
    failures.attempt([&] { fill(doc.control(), items); });
    if (failures.isEmpty()) {
        return;
    }
    try {
        fill(doc.control(), before);
    } catch (...) {
        logCurrentFailure();
        failures.note(host.translate(TextKey("%1: the custom information could not be put back.")).arg(camera));
    }
    failures.rethrow();
}
