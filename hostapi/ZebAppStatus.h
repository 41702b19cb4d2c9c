#pragma once

#include <QString>

class DOC_Interface;
class PLG_Interface;

/// Plug-ins, modes and status flags of the host. GUI thread. `PLG_Interface` tells what a host may do to a plug-in in
/// these calls.
class ZebAppStatus {
public:
    virtual ~ZebAppStatus() = default;

    /// The plug-in of that name; null when none is loaded, and once its destruction has begun. Does not throw.
    virtual PLG_Interface* getPlugin(const QString& name) const = 0;
    /// The plug-in that works on the images now; null when there is none. Does not throw.
    virtual PLG_Interface* getCurrentPlugin() const = 0;
    /// Its name; empty when there is none. Does not throw.
    virtual QString getCurrentPluginName() const = 0;
    /// Whether the image plug-in of that name may be used on `doc`.
    virtual bool isPluginEnabledFor(const QString& name, DOC_Interface* doc) const = 0;
    /// Opens the plug-in, or the panel of the image plug-in, of that name. Throws when there is none.
    virtual void openPlugin(const QString& name) = 0;
    /// Ends the use of the plug-in, by `PLG_Interface::deactivate`; a dialog that has closed asks for it.
    virtual void closePlugin(const QString& name) = 0;
    /// No plug-in works on the images any more; its panel stays.
    virtual void clearCurrentPlugin() = 0;
    /// Close the panel of the plug-in that works on the images, and the smaller one beside the images.
    virtual void closePanel() = 0;
    virtual void closeAuxiliaryPanel() = 0;

    /// Whether the camera table is in use. Does not throw.
    virtual void setWrenRunning(bool running) = 0;
    virtual bool isWrenRunning() const = 0;
    /// Told when the dialog of a plug-in is shown or has become active, and when it is about to close. Do not throw.
    virtual void notifyPluginShown(PLG_Interface* plugin) = 0;
    virtual void notifyPluginClosed(PLG_Interface* plugin) = 0;

    /// Change the mode of the host; back when the mode has changed.
    virtual void enterLiveMode() = 0;
    virtual void enterMemoryMode() = 0;

    /// Whether this is the host's edition of that name. Does not throw.
    virtual bool isMVersion() const = 0;

    /// Works that the host is busy with, a flag each: settings that are on their way to the cameras (exposure, hardware
    /// trigger, variable channel), a command of a network of cameras, images that are adjusted or searched for dead
    /// pixels, and the trigger by image, which records or watches. None throws.
    virtual bool isAutoExposureSetting() const = 0;
    virtual bool isHwTriggerSetting() const = 0;
    virtual bool isVariableSetting() const = 0;
    virtual bool isSendingNodeCommand() const = 0;
    virtual bool isAdjustingImage() const = 0;
    virtual bool isDetectingPixelDefect() const = 0;
    virtual bool isImageTriggerCapturing() const = 0;
    virtual bool isImageTriggerDetecting() const = 0;
};
