#pragma once

#include "ZebTypes.h"

#include <QString>
#include <QStringList>
#include <QVariant>

#include <exception>

class QFutureWatcherBase;
class QObject;
class QPoint;
class QRect;
class QWebView;
class QWidget;
class ZebAppStatus;
class ZebCameraOps;
class ZebDocManager;
class ZebLiveLoop;
class ZebMdi;
class ZebPageBridge;
class ZebPlayer;
class ZebPrefsDialog;
class ZebRecorder;
class ZebSaver;
class ZebSignalDevices;
class ZebUndo;
class ZebViewOps;
struct ZebSupportFile;

/// The host application as a plug-in sees it.
///
/// What holds for the whole boundary: operations are called on the GUI thread and may throw an exception
/// derived from `std::exception`, unless their line says otherwise. Nothing that is handed out is owned by the
/// caller. A pointer to a document is good until the caller returns to the event loop that called it, or calls what
/// makes the host run one of its own, as a message box; keep the key and fetch it again. Lists are never null; texts
/// are plain text.
class ZebHost {
public:
    virtual ~ZebHost() = default;

    /// Side interfaces; each lives as long as the host and none throws.
    virtual ZebAppStatus& appStatus() = 0;
    virtual ZebDocManager& docManager() = 0;
    virtual ZebLiveLoop& liveLoop() = 0;
    virtual ZebPlayer& player() = 0;
    virtual ZebRecorder& recorder() = 0;
    virtual ZebCameraOps& cameraOps() = 0;
    virtual ZebSaver& saver() = 0;
    virtual ZebViewOps& viewOps() = 0;
    virtual ZebMdi& mdi() = 0;
    virtual ZebUndo& undo() = 0;
    virtual ZebSignalDevices& signalDevices() = 0;

    /// The mode, 0 live, 1 memory, 2 file. None of these throws.
    virtual int getOperatingMode() const = 0;
    virtual bool isLiveMode() const = 0;
    virtual bool isMemoryMode() const = 0;
    virtual bool isFileMode() const = 0;

    /// The host's version as a text, for files that it writes.
    virtual QString getVersionText() const = 0;

    /// The value stored under a key, a slash path. A key never written answers the host's factory value, and
    /// where it has none `defaultValue`; an invalid default stands for 0, false or the empty text.
    virtual QVariant getPref(const QString& key, const QVariant& defaultValue = {}) const = 0;
    virtual int getPrefInt(const QString& key, const QVariant& defaultValue = {}) const = 0;
    virtual bool getPrefBool(const QString& key, const QVariant& defaultValue = {}) const = 0;
    virtual float getPrefFloat(const QString& key, const QVariant& defaultValue = {}) const = 0;
    virtual QString getPrefString(const QString& key, const QVariant& defaultValue = {}) const = 0;
    /// Store a value; it survives a restart.
    virtual void setPref(const QString& key, const QVariant& value) = 0;
    virtual void setPrefInt(const QString& key, int value) = 0;
    virtual void setPrefBool(const QString& key, bool value) = 0;
    virtual void setPrefFloat(const QString& key, float value) = 0;
    virtual void setPrefString(const QString& key, const QString& value) = 0;

    /// The order of columns that the table's tab `tab`, counted from 0, has before anyone changes it, in the form of
    /// the preferences `wren/column_order/`: their names with commas between; a text that names none stands for the
    /// tab's own order.
    virtual QString getDefaultColumnOrder(int tab) const = 0;

    /// Whether the store was found damaged and the factory values stand in it, which nobody has taken note of yet.
    virtual bool isPrefsRestored() const = 0;
    /// 1: somebody has.
    virtual void setPrefsRestored(int state) = 0;
    /// Settings are about to be loaded: what `isPrefsRestored` says from now on comes from that. `mode` is 0.
    virtual void clearPrefsRestored(int mode) = 0;

    /// The text in the user's language; a key without a translation comes back as it is. Does not throw.
    virtual QString translate(const QString& text) const = 0;

    /// Message boxes. Each runs an event loop until the user has dismissed it. `parent` null is the main window.
    /// "<br>" in a text is a line feed; any other markup is shown as it stands.
    virtual void info(const QString& message, QWidget* parent) = 0;
    virtual void warn(const QString& message, QWidget* parent) = 0;
    virtual void warnList(const QString& message, const QStringList& messages, QWidget* parent) = 0;
    virtual void alert(const QString& message, QWidget* parent) = 0;
    /// As `alert`, with a box "don't show again" that stores false under `prefKey`.
    virtual void alertWithDontShowAgain(const QString& message, const QString& prefKey, QWidget* parent,
                                        const ButtonTexts& buttons) = 0;
    virtual void alertList(const QString& message, const QStringList& messages, QWidget* parent) = 0;
    /// True when the user agreed.
    virtual bool confirm(const QString& message) = 0;
    virtual bool confirmModal(const QString& message, QWidget* parent, const ButtonTexts& buttons) = 0;
    /// As `confirmModal`, with a box "don't show again" that stores false under `prefKey`.
    virtual bool confirmWithDontShowAgain(const QString& message, const QString& prefKey, QWidget* parent,
                                          const ButtonTexts& buttons) = 0;
    /// Shows `e.what()` (UTF-8) to the user; nothing for an empty text. A `ZebCycleFailure` need not be waited for.
    virtual void errorHandler(const std::exception& e) = 0;

    /// Windows of the host, each with an event loop of its own until it is closed. The dialog of preferences is null
    /// when the host runs without a window.
    virtual ZebPrefsDialog* getPrefsDialog() = 0;
    virtual void openPrefsEthernetSettings() = 0;
    virtual void openAboutDialog() = 0;
    /// A modal progress with `text` until `watcher` has finished; it can't be cancelled. The outcome is the caller's.
    virtual void execProgress(const QString& text, QFutureWatcherBase& watcher) = 0;

    /// Gathers what a support file holds: states, logs, preferences, pictures of the windows.
    virtual void prepareSupportFile(ZebSupportFile& file) = 0;
    /// Writes it to `path` as ZIP; false when that failed. Any thread; does not throw.
    virtual bool exportSupportFile(const QString& path, const ZebSupportFile& file) = 0;
    /// Saves what is recorded: opens the dialog of saving, with the cameras one by one or with the layout of the image
    /// windows, and runs an event loop until all is saved or the user has given up.
    virtual void saveFiles() = 0;
    virtual void saveLayoutFiles() = 0;
    /// Dialogs that an export opens, each with an event loop of its own until it is closed: the form of a time code,
    /// and what a saved picture shows of the camera, for these documents. False when the user has given up.
    virtual bool openCustomTimeCodeDialog() = 0;
    virtual bool openSaveInfoView(const DocKeyList& keys) = 0;
    /// The folder of the analysis program that takes saved recordings over; empty when it is not installed.
    virtual void getTal2Folder(QString& out) const = 0;
    /// Whether the camera table has a window to take a picture of. Does not throw.
    virtual bool hasWrenWindow() const = 0;

    /// The host's floating lists, which open beside a control of a page. `key` names the list, as "partition".
    virtual void hideSelectBox() = 0;
    virtual bool isShownDropBox() const = 0;
    /// `anchor` is the control, in the pixels of its page.
    virtual void showDropDownBox(const QString& key, const QRect& anchor) = 0;
    virtual void hideDropDownBox(const QString& key) = 0;
    /// Hides the list unless `point`, in the pixels of its page, lies on it.
    virtual void hideDropDownBoxAt(const QString& key, const QPoint& point) = 0;

    /// What every page of the host sees as `app` and `main`; never null. Do not throw.
    virtual QObject* getAppObject() = 0;
    virtual QObject* getMainObject() = 0;

    /// Parent of dialogs; null when the host runs without a window. Does not throw.
    virtual QWidget* getMainWindow() const = 0;
    /// The area of the image windows; null when there is none. Does not throw.
    virtual QWidget* getMdiWidget() const = 0;
    /// Gives `bridge` its view and keeps it in the window object of `view`'s page. Call before the page loads.
    /// The host forgets both when either is destroyed. Does not throw.
    virtual void attachBridge(QWebView* view, ZebPageBridge* bridge) = 0;

    /// Asks for an update cycle, which comes from the event loop; requests until then are one. In the end it
    /// reaches `PLG_Interface::updateDialog`. Does not throw.
    virtual void updateUI(unsigned int mask, bool refresh) = 0;
    /// Calls nest. While deterred no cycle runs; one that was asked for runs after the last end. Does not throw.
    virtual void deterUpdateUI(bool deter) = 0;
    /// Whether update cycles pass without effect. Does not throw.
    virtual bool isUpdateIgnore() const = 0;
    /// Shows the image tools anew as they stand.
    virtual void refreshTools() = 0;

    /// The viewer draws its images while it runs. Suspend and resume nest. None of these throws.
    virtual bool isViewerRunning() const = 0;
    virtual void suspendViewer() = 0;
    virtual void resumeViewer() = 0;

    /// Flags of the host. None throws.
    /// Whether it has started up and takes commands.
    virtual bool isReady() const = 0;
    /// Whether its user is leaving it: nothing may keep it open any more.
    virtual bool isApplicationClosing() const = 0;
    /// While windows must not store where they stand, as while the host arranges them itself.
    virtual bool isWindowStateSaveSuppressed() const = 0;
    /// Whether the dialog of a plug-in that excludes recording is open.
    virtual bool isOtherPluginOpen() const = 0;
    /// True while the host keeps its selection, whatever the group of a table says.
    virtual bool isSelectionKept() const = 0;
    /// Whether the trigger is tested: one that comes is shown and starts no recording.
    virtual bool getTriggerTesting() const = 0;
    virtual void setTriggerTesting(bool on) = 0;
    /// Works on the images that are under way: marks are followed, the shading is measured, a lens is focussed.
    virtual bool isTracking() const = 0;
    virtual bool isShading() const = 0;
    virtual bool isAutoFocussing() const = 0;
    /// Whether the current camera has a lens that focusses by itself. `mode` is 1.
    virtual bool isCurrentAutoFocus(int mode) const = 0;
    /// The views do not take turns, whatever `ZebViewOps::isCycleView` says.
    virtual bool isCycleViewBlocked() const = 0;
    /// Whether the page in front is another than the live one or, with the flag, than that and the device settings.
    virtual bool isNotLivePage(bool orDeviceSettings) const = 0;
    /// Whether the dialog of preferences, or any modal dialog, stands.
    virtual bool isPrefDialogOpening() const = 0;
    virtual bool isModalDialogOpening() const = 0;
    /// Whether the host's own window is the active one.
    virtual bool isZebActive() const = 0;
    /// What fills the screen; null when nothing does.
    virtual QWidget* getFullScreenWidget() const = 0;
    /// Whether a text box has the focus, as `setTextBoxFocusState` tells.
    virtual bool isTextBoxFocussing() const = 0;
    /// While a text box of a page has the focus, the host's shortcut keys belong to it. Does not throw.
    virtual void setTextBoxFocusState(bool focused) = 0;
    /// Whether the image tool of the plug-in `tool` is the active one.
    virtual bool isToolActive(const QString& tool) const = 0;
    /// Whether the host has the image plug-in of that name.
    virtual bool isPluginAvailable(const QString& name) const = 0;
    /// Whether changes in that plug-in take effect only when the user presses OK.
    virtual bool isPluginOkPattern(const QString& name) const = 0;
    /// Types of cameras, as `DOC_Control::getCameraType` answers them, that can run on a common signal.
    virtual QList<int> getSyncCapableCameraTypes() const = 0;
    /// Whether `doc` can do `capability`, as "binning".
    virtual bool isCapable(const QString& capability, DOC_Interface* doc, int head) const = 0;
};
