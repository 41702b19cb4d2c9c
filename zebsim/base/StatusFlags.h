#pragma once

#include <QObject>
#include <QStringList>

#include <bitset>

/// States of the host that can be switched. One that the cameras bring about too is on while they do, whatever is
/// switched. GUI thread.
class StatusFlags {
    Q_GADGET

public:
    /// In the order of their names, by which a scenario switches them.
    enum Flag {
        ExistLowlight,
        IsActiveLensCalibration,
        IsActiveZebOnWren,
        IsAdjustingImage,
        IsAllLowlightOFF,
        IsAllLowlightON,
        IsAllWrenLockDevice,
        IsApplicationClosing,
        IsAutoExposureSetting,
        IsAutoFocussing,
        IsBgConverting,
        IsBgSaving,
        IsCTSReady,
        IsConflictPartition,
        IsCurrentAutoFocus,
        IsCycleView,
        IsCycleViewBlocked,
        IsDetectingPixelDefect,
        IsDirectSaving,
        IsFullScreen,
        IsHwTriggerSetting,
        IsImageOverlay,
        IsImageTriggerCapturing,
        IsImageTriggerDetecting,
        IsLensCalibration,
        IsLowlight,
        IsMVersion,
        IsModalDialogOpening,
        IsModalessDialogTextFocussing,
        IsNoneDocument,
        IsNoneWindow,
        IsNotLiveAndDeviceSettingPage,
        IsNotlivePage,
        IsOtherPluginOpen,
        IsPhaseAdjusting,
        IsPrefDialogOpening,
        IsReady,
        IsRecording,
        IsRecordingError,
        IsSaving,
        IsSelectionKept,
        IsSendingNodeCommand,
        IsShading,
        IsTracking,
        IsTriggerTesting,
        IsUpdateIgnore,
        IsVariableSetting,
        IsWaveDataAcquisition,
        IsWindowStateSaveSuppressed,
    };
    Q_ENUM(Flag)

    static QStringList names();

    void set(Flag flag, bool on) { m_on.set(flag, on); }
    /// Throws `std::invalid_argument`, which lists the names, for an unknown one.
    void set(const QString& name, bool on);
    bool isOn(Flag flag) const { return m_on.test(flag); }

private:
    std::bitset<64> m_on;
};
