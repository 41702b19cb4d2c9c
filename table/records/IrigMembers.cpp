#include "IrigMembers.h"

#include "DOC_Control.h"
#include "DOC_Interface.h"
#include "Record.h"
#include "TextKey.h"
#include "ZebHost.h"

namespace irigmembers {

namespace {

/// What stands where a connected camera has no such setting.
const QString NoSetting = QStringLiteral("-");

QString onOrOff(bool on) {
    return on ? TextKey("ON") : TextKey("OFF");
}

/// Key of the text for a camera with IRIG.
QString timeStamp(const DOC_Control& camera) {
    const bool enabled = camera.isIrigEnabled();
    if (!enabled || !camera.isFunctionSupported(zeb::FunctionIrigTimeStampPosition, 1)) {
        return onOrOff(enabled);
    }
    return camera.getIrigTimeStampPosition() != 0 ? TextKey("END OF EXPOSURE") : TextKey("START OF EXPOSURE");
}

}  // namespace

void add(Record& record, DOC_Interface& doc, const ZebHost& host, bool connected) {
    const DOC_Control& camera = doc.control();
    const bool supported = connected && camera.isFunctionSupported(zeb::FunctionIrig, 1);
    const bool syncs = supported && camera.isFunctionSupported(zeb::FunctionIrigSync, 1);
    const QString otherwise = connected ? NoSetting : QString();
    record.setFlag(QLatin1String("irigSupported"), supported);
    record.setText(QLatin1String("irigTimeStamp"), supported ? host.translate(timeStamp(camera)) : otherwise);
    record.setText(QLatin1String("irigSync"), syncs ? host.translate(onOrOff(camera.isIrigSync())) : otherwise);
}

}  // namespace irigmembers
