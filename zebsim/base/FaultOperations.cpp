#include "FaultOperations.h"

#include <QStringList>

namespace {

QSet<QString> namesIn(const char* text) {
    const QStringList names = QString::fromLatin1(text).split(QLatin1Char(' '), Qt::SkipEmptyParts);
    return {names.begin(), names.end()};
}

}  // namespace

const QSet<QString>& cameraOperations() {
    static const QSet<QString> names = namesIn(
        "applyPartition arm cancel connectDocs deselectDoc disarm disconnectDocs eraseRecordedData formatShutterSpeed "
        "getAddress getAlerts getBinningPower getCameraName getCameraStatus getCameraType getComment "
        "getCurrentPartition getDeviceAlias getDeviceName getExposureDelayClass getExposureTimingClass getFirstFrame "
        "getFrameCount getFrameSkip getFrameTotal getHeadDocs getHeadNumber getImageFormat getImageSize "
        "getIrigTimeStampPosition getLastFrame getLinkSpeedState getLowLightType getManualTriggerParameters "
        "getParentDoc getPartitionCount getPartitionName getPluginNames getPoint getPortList getPortSignal "
        "getRecordRate getRecordRateList getRecordState getRecordedRate getRecordedRateOfPartition getReduceMode "
        "getResolution getResolutionList getScale getSelectEndFrame getSelectStartFrame getShutterSpeed "
        "getShutterSpeedEntries getShutterSpeedList getSyncStatusText getToolRect getTriggerFrame getTriggerMode "
        "getTriggerModeList getTriggerOffset getTriggerOffsetBase getVariableChannelInfo getWifiState hasRecordedData "
        "hasSyncStatus isAutoExposure isCFastSelected isConnected isDualSlopeShutter isDummy isFrameSkipEnabled "
        "isFunctionSupported isIrigEnabled isIrigSync isLowLightMode isLutCurve isMobileSelected isMultiHead "
        "isParamLocked isPlaying isPluginEffective isQuikDriveSelected isRecordCheck isSdSelected isSelected "
        "isStopLive isSuspendReduce isToolChecked isTriggerOffsetEnabled readFrame record refresh selectDoc "
        "setCameraName setComment setFrameSkip setFrameSkipEnabled setFrameSkipMode setLowLight setLowLightType "
        "setParamLock setPartition setRandomTriggerPhase setRecordAreaEnd setRecordAreaStart setRecordCheck "
        "setRecordRate setReduceMode setResolution setSelectRange setShutterSpeed setToolRect setTriggerMode "
        "setTriggerOffset setTriggerOffsetEnabled setVariable stop synchronise trigger ");
    return names;
}

const QSet<QString>& hubOperations() {
    static const QSet<QString> names = namesIn("getFrequencies getFrequency getRole isConnected search setFrequency ");
    return names;
}

const QSet<QString>& hostOperations() {
    static const QSet<QString> names = namesIn(
        "alert alertList alertWithDontShowAgain beginDocEdit beginDocEditNotify beginMacro canRedo canSync canUndo "
        "cancelRecording clear clearCurrentPlugin close closeAuxiliaryPanel closePanel closePlugin commitDocEdit "
        "confirm confirmModal confirmWithDontShowAgain connectDocs copyToClipboard deleteAllDocs deselectDoc "
        "disconnectDocs discoverCameras editDoc endDocEdit endMacro enterLiveMode enterMemoryMode errorHandler exec "
        "execProgress existLowlight findByAddress getCameraDocs getConnectedDocKeys getCurrentDoc getCurrentDockey "
        "getCurrentVariable getDocCount getDocKeys getLiveDocKeys getPref getPrefBool getPrefFloat getPrefInt "
        "getPrefString getPrefsDialog getRecStatus getRecordingState getSelectedDocCount getSelectedDocKeys "
        "getSyncableDocs getTriggerSettings hasWaveformData hideDropDownBox hideDropDownBoxAt hideSelectBox info "
        "isAllLowlight isAllWrenLockDevice isConflictPartition isCurrentDoc isDirectSaving isLensCalibration "
        "isLowlight isPhaseAdjusting isPluginEnabledFor isPrefsRestored isRecordAreaEnabled isRecording "
        "isShownDropBox isWaveDataAcquisition open openAboutDialog openPlugin openPrefsEthernetSettings "
        "prepareSupportFile refreshDocList refreshTools restartLive restartLiveAfterEnd restartLiveAfterTool "
        "saveFiles saveLayoutFiles search searchCamera selectAllDocs selectDoc setActiveQuickTool setCurrentDoc "
        "setLowLight setLowLightType setPage setPartition setPref setPrefBool setPrefFloat setPrefInt setPrefString "
        "setPrefsRestored setQuickTool setRandomTriggerPhase setRecordRate setReduceMode setResolution "
        "setSelectedDocs setShutterSpeed setStopLive setTriggerMode setVariable sharesDeviceWithLockedHead "
        "showDropDownBox snapShot startRecReady stopForPrefs stopRecording syncCameras toolApply toolBegin toolEnd "
        "toolSelect toolSelectAll triggerRecording updateCameras updateLive warn warnList ");
    return names;
}
