#include "FactoryValues.h"

#include "SaveOptions.h"
#include "ZebTypes.h"

#include <QStandardPaths>

namespace {

struct FactoryValue {
    QByteArray key;
    QVariant value;
};

QVariant text(const char* value) {
    return QString::fromLatin1(value);
}

QList<FactoryValue> table() {
    const QString documents = QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation);
    return {
        {"alert/setsynchronization", true},
        {"alert/unsavedrecording", true},
        {"alert/wren/multiheadlockalert", true},
        {"cameraconnection/SearchIP", text("192.168.0")},
        {"customize/unitSystem", 1},
        {"devicemanager/connectedCameraOnlyShowing", false},
        {"display/DisplayWithRealBitDepth", false},
        {"display/ShutterSpeed", 1},
        {"display/frameInsertDelimiter", false},
        {"display/recordRateInsertDelimiter", false},
        {"env/language", text("en")},
        {"env/style", text("light")},
        {"main/scrno", -1},
        {"recording/AutoDownload", true},
        {"recording/RecAllConnectedCamera", false},
        {"recording/useTriggerTest", true},
        // What a camera adds to its names is enough.
        {"save/EnableBlankFilename", true},
        {"save/SaveInfFile", false},
        {"save/fixedgroupdir", text("")},
        {"save/substitutefolder", text("")},
        {"saveinfo/display0", text("File name:1,Camera name:1")},
        {"saveinfo/display1", text("Frame number:1,Time:1")},
        {"saveinfo/display2", text("Record rate:1,Shutter speed:1,Resolution:1")},
        {"saveinfo/display3", text("")},
        {"saveinfo/display4", text("")},
        {"saveinfo/display5", text("")},
        {"saveinfo/display6", text("")},
        {"saveinfo/timecode", text("seconds")},
        {"sync/external", 0},
        {"sync/generator/address", text("")},
        {"sync/generator/input", 0},
        {"sync/lport", int(zeb::SyncPortNone)},
        {"sync/lport/ipaddress", text("")},
        {"sync/masterCamera", text("")},
        {"tal2/folder", text("")},
        {"trigger/manualBeforePercent", 50.0},
        {"trigger/randomFrames", 100},
        {"trigger/randomTimes", 10},
        {"usercustom/cameraNameFilePath", QString(documents + QStringLiteral("/Kestrel/ZEB4/cameranamelist.csv"))},
        {"wren/column_order/cameraInfo",
         text("lock,connectIcon,cameraName,alert,cameraStatus,sync,connectionStatus,ipAddress,comment")},
        {"wren/column_order/livecontrol", text("lock,connectIcon,cameraName,alert,cameraStatus,sync,frameRate,"
                                               "shutterSpeed,resolution,trigger,reduce,lowlight")},
        {"wren/column_order/sync",
         text("lock,connectIcon,cameraName,alert,cameraStatus,sync,externalSync,triggerIn,triggerSwIn")},
        {"wren/column_order/irig", text("lock,connectIcon,cameraName,alert,cameraStatus,sync,irigTimeStamp,irigSync")},
        {"wren/column_order/plugin", text("lock,connectIcon,cameraName,alert,cameraStatus,sync,plugin")},
        {"wren/column_order/memoryInfo",
         text("recordCheck,connectIcon,cameraName,alert,frameRate,originalStartFrameNo,originalEndFrameNo,"
              "selectStartFrameNo,selectEndFrameNo,totalFrame,triggerOffset")},
        {"wren/column_order/memoryPlugin", text("recordCheck,connectIcon,cameraName,alert,plugin")},
        {"wren/display/alert", true},
        {"wren/display/cameraSettings", true},
        {"wren/display/customSettings", true},
        {"wren/display/externalSync", true},
        {"wren/display/frameRate", true},
        {"wren/display/irigTab", true},
        {"wren/display/lock", true},
        {"wren/display/memoryPluginTab", true},
        {"wren/display/pluginTab", true},
        {"wren/display/recordCheck", true},
        {"wren/display/recordedEndFrame", true},
        {"wren/display/recordedFrameRate", true},
        {"wren/display/recordedStartFrame", true},
        {"wren/display/reduceMode", true},
        {"wren/display/resolution", true},
        {"wren/display/shutterSpeed", true},
        {"wren/display/syncStatus", true},
        {"wren/display/syncTab", true},
        {"wren/display/triggerMode", true},
        {"wren/display/triggerOffset", true},
        {"wren/ready", false},
        {"wren/settings/areas", text("")},
        {"wren/settings/areasEnable", false},
        {"wren/settings/deviceSpeedPlaying", false},
        {"wren/settings/done", false},
        {"wren/settings/externalSyncSignal", -1},
        {"wren/settings/externalSyncSignals", text("")},
        {"wren/settings/externalSyncSignalsEnable", false},
        {"wren/settings/frameRates", text("")},
        {"wren/settings/frameRatesEnable", false},
        {"wren/settings/groups", text("")},
        // As cameras have it before anyone sets it.
        {"wren/settings/lowlightMaxResolution", true},
        {"wren/settings/memoryTableColor", text("skyblue")},
        {"wren/settings/recordingSync", false},
        {"wren/settings/recordingTableColor", text("orange")},
        {"wren/settings/recreadyTableColor", text("green")},
        {"wren/settings/resolutionLock", false},
        {"wren/settings/resolutions", text("")},
        {"wren/settings/resolutionsEnable", false},
        {"wren/settings/shutterSpeedLock", false},
        {"wren/settings/shutterSpeeds", text("")},
        {"wren/settings/shutterSpeedsEnable", false},
        {"wren/settings/syncInEnable", false},
        {"wren/settings/triggerEnable", false},
        {"wren/settings/triggerIn", int(zeb::SignalTrigPos)},
        {"wren/settings/triggerInEnable", false},
        {"wren/settings/triggerManualAfterPer", 50.0},
        {"wren/settings/triggerManualBeforePer", 50.0},
        {"wren/settings/triggerMode", int(zeb::TriggerStart)},
        {"wren/settings/triggerRandomFrame", 100},
        {"wren/settings/triggerRandomTriggerTimes", 10},
        {"wren/settings/triggerRandomTriggerTimesEnable", true},
        {"wren/settings/triggerSwIn", int(zeb::SignalNormallyOpen)},
        {"wren/settings/triggerSwInEnable", false},
        {"wren/table/filter", 0},
        {"wren/table/group", text("*")},
        {"wren/table/h", 600},
        {"wren/table/interval", 500},
        {"wren/table/scrno", 0},
        {"wren/table/stat", 0},
        {"wren/table/w", 1200},
        {"wren/table/x", 100},
        {"wren/table/y", 80},
        {"xml/dir", documents},
    };
}

}  // namespace

const QHash<QString, QVariant>& factoryValues() {
    static const QHash<QString, QVariant> values = [] {
        QHash<QString, QVariant> byKey;
        const auto add = [&byKey](const QString& key, const QVariant& value) {
            Q_ASSERT(!byKey.contains(key));
            byKey.insert(key, value);
        };
        for (const SaveOptionKey& option : saveOptionKeys()) {
            if (option.value.isValid()) {
                add(option.key, option.value);
            }
        }
        const QList<FactoryValue> others = table();
        for (const FactoryValue& entry : others) {
            add(QString::fromLatin1(entry.key), entry.value);
        }
        return byKey;
    }();
    return values;
}
