#include "CustomInfoLists.h"

#include "DOC_Control.h"
#include "LogFailure.h"

void replaceCustomInfo(DOC_Control& control, const std::function<void()>& fill) {
    const QList<QVariantMap> before = control.getCustomInfoList();
    const auto text = [](const QVariantMap& item, const char* key) {
        return item.value(QLatin1String(key)).toString();
    };
    const auto isOn = [](const QVariantMap& item, const char* key) { return item.value(QLatin1String(key)).toBool(); };
    control.clearCustomInfo();
    try {
        fill();
    } catch (...) {
        logFailure([&] {
            control.clearCustomInfo();
            for (const QVariantMap& item : before) {
                control.addCustomInfo(text(item, "name"), text(item, "value"), text(item, "unit"),
                                      isOn(item, "display"), isOn(item, "usefilename"));
            }
        });
        throw;
    }
}
