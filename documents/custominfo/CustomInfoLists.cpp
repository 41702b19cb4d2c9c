#include "CustomInfoLists.h"

#include "DOC_Control.h"
#include "LogFailure.h"

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

void replaceCustomInfo(DOC_Control& control, const QList<QVariantMap>& items) {
    const QList<QVariantMap> before = control.getCustomInfoList();
    try {
        fill(control, items);
    } catch (...) {
        logFailure([&] { fill(control, before); });
        throw;
    }
}
