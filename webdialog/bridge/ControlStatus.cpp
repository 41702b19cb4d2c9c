#include "ControlStatus.h"

#include "CycleFailures.h"
#include "DOC_Activity.h"
#include "DOC_Interface.h"
#include "DOC_Lock.h"
#include "DOC_Storage.h"
#include "NamedFailure.h"
#include "PLG_Interface.h"
#include "ZebAppStatus.h"
#include "ZebCameraOps.h"
#include "ZebDocManager.h"
#include "ZebHost.h"
#include "ZebMdi.h"
#include "ZebRecorder.h"
#include "ZebSaver.h"
#include "ZebUndo.h"
#include "ZebViewOps.h"

#include <QJsonObject>

namespace {

using Status = QJsonObject;

void addCounts(Status& status, ZebHost& host) {
    const int windows = host.mdi().countMdiWindow(true, 0);
    status[QStringLiteral("IsNoneWindow")] = windows < 1;
    status[QStringLiteral("IsSingleWindow")] = windows == 1;
    status[QStringLiteral("IsMultiWindow")] = windows >= 2;
    status[QStringLiteral("IsNoneDocument")] = host.docManager().getDocCount() < 1;
    status[QStringLiteral("IsSingleSelectedDocument")] = host.docManager().getSelectedDocCount() == 1;
}

void addRecording(Status& status, ZebHost& host) {
    const int state = host.recorder().getRecordingState();
    status[QStringLiteral("IsRecording")] = host.recorder().isRecording();
    status[QStringLiteral("IsCTSReady")] = state == zeb::RecordCtsReady;
    status[QStringLiteral("IsReady")] = state == zeb::RecordReady;
    status[QStringLiteral("IsNotRecording")] = state == zeb::RecordLive;
    status[QStringLiteral("IsRecordingError")] = state == zeb::RecordError;
    const bool autoDownload = host.getPrefBool(QStringLiteral("recording/AutoDownload"));
    status[QStringLiteral("IsLiveNoAutoDownloadSetting")] = !autoDownload && host.isLiveMode();
    const bool testable = autoDownload && host.getPrefBool(QStringLiteral("recording/useTriggerTest"));
    status[QStringLiteral("HideTriggerTest")] = !testable;
}

void addSaving(Status& status, ZebHost& host) {
    status[QStringLiteral("IsBgSaving")] = host.saver().isBgSaving();
    status[QStringLiteral("IsBgConverting")] = host.saver().isBgConverting();
    status[QStringLiteral("IsDirectSaving")] = host.cameraOps().isDirectSaving(1);
    status[QStringLiteral("IsAutoExpoting")] = host.saver().isSaving() && host.isLiveMode();
}

void addModesAndUndo(Status& status, ZebHost& host) {
    status[QStringLiteral("IsLiveMode")] = host.isLiveMode();
    status[QStringLiteral("IsMemoryMode")] = host.isMemoryMode();
    status[QStringLiteral("IsFileMode")] = host.isFileMode();
    status[QStringLiteral("IsNotUndo")] = !host.undo().canUndo();
    status[QStringLiteral("IsNotRedo")] = !host.undo().canRedo();
}

void addCameras(Status& status, ZebHost& host) {
    const ZebCameraOps& cameras = host.cameraOps();
    status[QStringLiteral("IsLowlight")] = cameras.isLowlight();
    status[QStringLiteral("ExistLowlight")] = cameras.existLowlight();
    status[QStringLiteral("IsAllLowlightON")] = cameras.isAllLowlight(true);
    status[QStringLiteral("IsAllLowlightOFF")] = cameras.isAllLowlight(false);
    status[QStringLiteral("IsLensCalibration")] = cameras.isLensCalibration();
    const bool locking = host.appStatus().isWrenRunning() && host.isLiveMode();
    status[QStringLiteral("IsAllWrenLockDevice")] = locking && cameras.isAllWrenLockDevice();
    status[QStringLiteral("IsNoneWaveformData")] = !host.docManager().hasWaveformData();
    status[QStringLiteral("IsConflictPartition")] = host.docManager().isConflictPartition(1);
    status[QStringLiteral("IsPhaseAdjusting")] = host.docManager().isPhaseAdjusting();
}

void addWorks(Status& status, ZebHost& host) {
    const ZebAppStatus& app = host.appStatus();
    status[QStringLiteral("IsAutoExposureSetting")] = app.isAutoExposureSetting();
    status[QStringLiteral("IsHwTriggerSetting")] = app.isHwTriggerSetting();
    status[QStringLiteral("IsVariableSetting")] = app.isVariableSetting();
    status[QStringLiteral("IsSendingNodeCommand")] = app.isSendingNodeCommand();
    status[QStringLiteral("IsAdjustingImage")] = app.isAdjustingImage();
    status[QStringLiteral("IsDetectingPixelDefect")] = app.isDetectingPixelDefect();
    status[QStringLiteral("IsImageTriggerCapturing")] = app.isImageTriggerCapturing();
    status[QStringLiteral("IsImageTriggerDetecting")] = app.isImageTriggerDetecting();
    status[QStringLiteral("IsTracking")] = host.isTracking();
    status[QStringLiteral("IsShading")] = host.isShading();
    status[QStringLiteral("IsAutoFocussing")] = host.isAutoFocussing();
    status[QStringLiteral("IsNotCurrentAutoFocus")] = host.isLiveMode() && !host.isCurrentAutoFocus(1);
    status[QStringLiteral("IsCycleView")] = host.viewOps().isCycleView() && !host.isCycleViewBlocked();
}

void addPlugins(Status& status, ZebHost& host) {
    const ZebAppStatus& app = host.appStatus();
    const PLG_Interface* plugin = app.getCurrentPlugin();
    const QString name = app.getCurrentPluginName();
    status[QStringLiteral("IsMouseDragging")] = plugin && plugin->isDragging();
    status[QStringLiteral("IsActiveLensCalibration")] = name == QLatin1String("lenscalib");
    status[QStringLiteral("IsImageOverlay")] = name == QLatin1String("imageoverlay");
    status[QStringLiteral("IsWren")] = app.isWrenRunning();
    status[QStringLiteral("IsOtherPluginOpen")] = host.isOtherPluginOpen();
}

void addWindows(Status& status, ZebHost& host) {
    status[QStringLiteral("IsNotlivePage")] = host.isNotLivePage(false);
    status[QStringLiteral("IsNotLiveAndDeviceSettingPage")] = host.isNotLivePage(true);
    status[QStringLiteral("IsPrefDialogOpening")] = host.isPrefDialogOpening();
    status[QStringLiteral("IsModalDialogOpening")] = host.isModalDialogOpening();
    status[QStringLiteral("IsFullScreen")] = host.getFullScreenWidget() != nullptr;
    status[QStringLiteral("IsModalessDialogTextFocussing")] = host.isTextBoxFocussing();
    status[QStringLiteral("IsActiveZebOnWren")] = host.isZebActive();
}

void addDocument(Status& status, ZebHost& host, DOC_Interface* doc) {
    const bool locking = host.appStatus().isWrenRunning() && host.isLiveMode();
    status[QStringLiteral("IsCurrentDisconnected")] = doc && !doc->isConnected();
    status[QStringLiteral("IsWrenLockDevice")] = locking && doc && doc->lock().isParamLocked();
    status[QStringLiteral("IsLutCurve")] = doc && doc->storage().isLutCurve();
    status[QStringLiteral("IsSuspendReduce")] = doc && doc->activity().isSuspendReduce();
    status[QStringLiteral("IsExternalMediaSelected")] =
        doc && (doc->isSdSelected() || doc->isQuikDriveSelected() || doc->isCFastSelected());
}

}  // namespace

QJsonObject controlStatus(ZebHost& host, DOC_Interface* doc, CycleFailures& failures) {
    Status status;
    addCounts(status, host);
    addRecording(status, host);
    addSaving(status, host);
    addModesAndUndo(status, host);
    addCameras(status, host);
    addWorks(status, host);
    addPlugins(status, host);
    addWindows(status, host);
    // One camera that does not answer rules no control of the others.
    failures.attempt(QStringLiteral("current document"), [&] {
        DOC_Interface* shown = doc ? doc : host.docManager().getCurrentDoc();
        if (!shown) {
            return addDocument(status, host, nullptr);
        }
        onCamera(*shown, [&] { addDocument(status, host, shown); });
    });
    return status;
}
