#include "CameraAction.h"

#include "DOC_Control.h"
#include "DOC_Frames.h"
#include "DOC_Image.h"
#include "DOC_Interface.h"
#include "DOC_Lock.h"
#include "LiveControlMembers.h"
#include "NumberFormat.h"
#include "TextKey.h"
#include "ZebHost.h"

using cameraaction::flag;

namespace {

QString asItIs(const ZebHost&, DOC_Interface&, const QString& value) {
    return value;
}

QString onOff(const ZebHost& host, DOC_Interface&, const QString& value) {
    return host.translate(value == flag(true) ? TextKey("ON") : TextKey("OFF"));
}

QString isConnected(DOC_Interface& doc) {
    return flag(doc.isConnected());
}

QString rateText(const ZebHost& host, DOC_Interface&, const QString& value) {
    return numberformat::rate(value.toUInt(), host.translate(TextKey("fps")),
                              host.getPrefBool(QStringLiteral("display/recordRateInsertDelimiter")));
}

QString sizeText(const QSize& size) {
    return QStringLiteral("%1 x %2").arg(size.width()).arg(size.height());
}

/// Frames are counted from the trigger.
QString frameText(DOC_Interface& doc, int frame) {
    return QString::number(frame - doc.frames().getTriggerFrame(0));
}

}  // namespace

QString textOf(const CameraAction& action, const ZebHost& host, DOC_Interface& doc, const QString& value) {
    try {
        return action.text(host, doc, value);
    } catch (...) {
        return value;
    }
}

bool CameraAction::applies(const ZebHost& host, const QString& asked) const {
    return has(OfLive)     ? host.isLiveMode() && !asked.isEmpty()
           : has(OfMemory) ? host.isMemoryMode()
                           : !host.isFileMode();
}

bool CameraAction::isFor(DOC_Interface& doc) const {
    return (!has(OfRecorded) || doc.frames().getFrameCount(0, 0) > 0) && (!has(OfSelected) || doc.isSelected());
}

bool CameraAction::heedsLock(const ZebHost& host) const {
    return has(KeptByLock) && (!has(LockOfLive) || host.isLiveMode());
}

namespace cameraaction {

QString flag(bool on) {
    return on ? QStringLiteral("true") : QStringLiteral("false");
}

const CameraAction FrameRate{
    "frameRate", QT_TR_NOOP("Frame rate"),
    [](DOC_Interface& doc) { return QString::number(doc.control().getRecordRate(0)); }, rateText,
    CameraAction::MayClamp | CameraAction::KeptByLock | CameraAction::MovesOthers | CameraAction::OfLive};

const CameraAction Shutter{
    "shutterSpeed", QT_TR_NOOP("Shutter speed"),
    [](DOC_Interface& doc) { return QString::number(doc.control().getShutterSpeed()); },
    [](const ZebHost&, DOC_Interface& doc, const QString& value) { return doc.formatShutterSpeed(value.toInt(), 0); },
    CameraAction::MayClamp | CameraAction::KeptByLock | CameraAction::MovesOthers | CameraAction::OfLive};

const CameraAction ImageSize{
    "resolution", QT_TR_NOOP("Resolution"), [](DOC_Interface& doc) { return sizeText(doc.control().getResolution()); },
    asItIs, CameraAction::MayClamp | CameraAction::KeptByLock | CameraAction::MovesOthers | CameraAction::OfLive};

const CameraAction Trigger{"triggerMode", QT_TR_NOOP("Trigger mode"),
                           [](DOC_Interface& doc) { return QString::number(doc.control().getTriggerMode()); },
                           [](const ZebHost& host, DOC_Interface&, const QString& value) {
                               return LiveControlMembers::triggerText(host, value.toInt());
                           },
                           CameraAction::KeptByLock | CameraAction::MovesOthers | CameraAction::OfLive};

const CameraAction LiveSpeed{"reduceMode", QT_TR_NOOP("Live speed"),
                             [](DOC_Interface& doc) { return flag(doc.control().getReduceMode(0)); }, onOff,
                             CameraAction::KeptByLock | CameraAction::NoKeysMeanAll | CameraAction::OfLive};

const CameraAction LowLight{
    "lowLight", QT_TR_NOOP("Lowlight"), [](DOC_Interface& doc) { return flag(doc.control().isLowLightMode()); }, onOff,
    CameraAction::KeptByLock | CameraAction::MovesOthers | CameraAction::NoKeysMeanAll | CameraAction::OfLive};

const CameraAction LowLightType{
    "lowLightType", QT_TR_NOOP("Lowlight"),
    [](DOC_Interface& doc) { return flag(doc.control().getLowLightType() == zeb::LowLightTypeFast); }, onOff,
    CameraAction::KeptByLock | CameraAction::OfLive};

const CameraAction Lock{"lock", QT_TR_NOOP("Lock"), [](DOC_Interface& doc) { return flag(doc.lock().isParamLocked()); },
                        onOff, CameraAction::KeptByLowLight | CameraAction::OfLive};

const CameraAction Connect{"connect", QT_TR_NOOP("Connect"), isConnected, onOff,
                           CameraAction::ReachesOff | CameraAction::OfThoseOff | CameraAction::OfLive};

const CameraAction Disconnect{"disconnect", QT_TR_NOOP("Disconnect"), isConnected, onOff,
                              CameraAction::KeptByLock | CameraAction::ReachesOff | CameraAction::OfLive};

const CameraAction ForcedDisconnect{"disconnect", QT_TR_NOOP("Disconnect"), isConnected, onOff,
                                    CameraAction::ReachesOff};

const CameraAction Name{"cameraName", QT_TR_NOOP("Camera name"),
                        [](DOC_Interface& doc) { return doc.control().getCameraName(1); }, asItIs,
                        CameraAction::KeptByLock | CameraAction::LockOfLive};

const CameraAction Comment{"comment", QT_TR_NOOP("Comment"),
                           [](DOC_Interface& doc) {
                               return doc.image().getComment().replace(QLatin1String(zeb::CommentSeparator),
                                                                       QLatin1String("\n"));
                           },
                           asItIs, CameraAction::KeptByLock};

const CameraAction RecordCheck{"recordCheck", QT_TR_NOOP("recordCheck"),
                               [](DOC_Interface& doc) { return flag(doc.frames().isRecordCheck()); }, onOff,
                               CameraAction::OfMemory | CameraAction::OfSelected};

const CameraAction FirstFrame{"selectStartFrameNo", QT_TR_NOOP("selectStartFrameNo"),
                              [](DOC_Interface& doc) { return frameText(doc, doc.frames().getSelectStartFrame(0)); },
                              asItIs, CameraAction::MayClamp | CameraAction::OfMemory | CameraAction::OfRecorded};

const CameraAction LastFrame{"selectEndFrameNo", QT_TR_NOOP("selectEndFrameNo"),
                             [](DOC_Interface& doc) { return frameText(doc, doc.frames().getSelectEndFrame(0)); },
                             asItIs, CameraAction::MayClamp | CameraAction::OfMemory | CameraAction::OfRecorded};

const CameraAction Offset{
    "triggerOffset", QT_TR_NOOP("triggerOffset"),
    [](DOC_Interface& doc) {
        const DOC_Control& camera = doc.control();
        const int base = camera.getTriggerOffsetBase();
        return QString::number(camera.isTriggerOffsetEnabled() ? camera.getTriggerOffset() - base : 0);
    },
    asItIs, CameraAction::MayClamp | CameraAction::OfMemory | CameraAction::OfRecorded};

}  // namespace cameraaction
