#include "StatusFlags.h"

#include <stdexcept>

StatusFlags::StatusFlags() {
    for (const char* name : {"ExistLowlight",
                             "IsActiveLensCalibration",
                             "IsActiveZebOnWren",
                             "IsAdjustingImage",
                             "IsAllLowlightOFF",
                             "IsAllLowlightON",
                             "IsAllWrenLockDevice",
                             "IsApplicationClosing",
                             "IsAutoExposureSetting",
                             "IsAutoFocussing",
                             "IsBgConverting",
                             "IsBgSaving",
                             "IsConflictPartition",
                             "IsCTSReady",
                             "IsCurrentAutoFocus",
                             "IsCycleView",
                             "IsCycleViewBlocked",
                             "IsDetectingPixelDefect",
                             "IsDirectSaving",
                             "IsFullScreen",
                             "IsHwTriggerSetting",
                             "IsImageOverlay",
                             "IsImageTriggerCapturing",
                             "IsImageTriggerDetecting",
                             "IsLensCalibration",
                             "IsLowlight",
                             "IsModalDialogOpening",
                             "IsModalessDialogTextFocussing",
                             "IsMVersion",
                             "IsNoneDocument",
                             "IsNoneWindow",
                             "IsNotLiveAndDeviceSettingPage",
                             "IsNotlivePage",
                             "IsOtherPluginOpen",
                             "IsPhaseAdjusting",
                             "IsPrefDialogOpening",
                             "IsReady",
                             "IsRecording",
                             "IsRecordingError",
                             "IsSaving",
                             "IsSelectionKept",
                             "IsSendingNodeCommand",
                             "IsShading",
                             "IsTracking",
                             "IsTriggerTesting",
                             "IsUpdateIgnore",
                             "IsVariableSetting",
                             "IsWaveDataAcquisition",
                             "IsWindowStateSaveSuppressed"}) {
        m_flags.insert(QString::fromLatin1(name), false);
    }
}

void StatusFlags::set(const QString& name, bool on) {
    const auto flag = m_flags.find(name);
    if (flag == m_flags.end()) {
        throw std::invalid_argument(QStringLiteral("the host has no state \"%1\"; it has %2")
                                        .arg(name, names().join(QStringLiteral(", ")))
                                        .toStdString());
    }
    *flag = on;
}

bool StatusFlags::isOn(const QString& name) const {
    return m_flags.value(name);
}
