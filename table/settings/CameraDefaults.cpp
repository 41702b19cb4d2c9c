#include "CameraDefaults.h"

#include "SettingsKeys.h"
#include "TriggerEditing.h"
#include "ZebHost.h"

namespace {

/// The number of a preference, nothing while its switch is off.
std::optional<int> switched(const ZebHost& host, const QString& key, const QString& switchKey) {
    return host.getPrefBool(switchKey) ? std::optional(host.getPrefInt(key)) : std::nullopt;
}

}  // namespace

CameraDefaults CameraDefaults::read(ZebHost& host) {
    using namespace settingskeys;
    CameraDefaults defaults;
    defaults.triggerMode = switched(host, TriggerMode, TriggerEnable);
    defaults.trigger = TriggerEditing(host).defaultParameters();
    defaults.triggerSwIn = switched(host, TriggerSwIn, TriggerSwIn % SwitchSuffix);
    defaults.triggerIn = switched(host, TriggerIn, TriggerIn % SwitchSuffix);
    defaults.resolutionLock = host.getPrefBool(ResolutionLock);
    defaults.shutterSpeedLock = host.getPrefBool(ShutterSpeedLock);
    defaults.lowLightType = host.getPrefBool(LowLightMaxResolution) ? zeb::LowLightTypeFast : zeb::LowLightTypeFine;
    return defaults;
}
