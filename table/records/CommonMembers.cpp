#include "CommonMembers.h"

#include "DOC_Activity.h"
#include "DOC_Control.h"
#include "DOC_Interface.h"
#include "DOC_Lock.h"
#include "Record.h"

namespace commonmembers {

QString statusText(int cameraStatus) {
    switch (cameraStatus) {
        case zeb::CameraLive:
            return QStringLiteral("LIVE");
        case zeb::CameraRecReady:
        case zeb::CameraTriggerReady:
        case zeb::CameraEndlessReady:
            return QStringLiteral("Ready");
        case zeb::CameraRecording:
            return QStringLiteral("Recording...");
        default:
            return {};
    }
}

bool addLive(Record& record, DOC_Interface& doc, bool connected) {
    const DOC_Control& camera = doc.control();
    record.setFlag(QLatin1String("lock"), connected && doc.lock().isParamLocked());
    const bool lowLight = connected && camera.isLowLightMode();
    record.setFlag(QLatin1String("lowLightMode"), lowLight);
    record.setText(QLatin1String("cameraStatus"), connected ? statusText(camera.getCameraStatus()) : QString());
    record.setText(QLatin1String("syncStatus"),
                   connected && camera.hasSyncStatus() ? camera.getSyncStatusText() : QString());
    record.setFlag(QLatin1String("reduceModeSupported"),
                   connected && camera.isFunctionSupported(zeb::FunctionReduceMode, 1));
    const bool reduce = connected && camera.getReduceMode(0);
    if (connected) {
        doc.activity().isSuspendReduce();  // one that does not tell whether its switch is open shows none
    }
    record.setFlag(QLatin1String("reduceMode"), reduce);
    record.setFlag(QLatin1String("lowLightModeSupported"),
                   connected && camera.isFunctionSupported(zeb::FunctionLowLight, 1));
    record.setFlag(QLatin1String("lowLightType"), connected && camera.getLowLightType() == zeb::LowLightTypeFast);
    return lowLight;
}

}  // namespace commonmembers
