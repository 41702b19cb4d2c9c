#pragma once

#include "AppObject.h"
#include "BridgeDesk.h"
#include "CameraBank.h"
#include "FaultPlan.h"
#include "HostCalls.h"
#include "HostEvents.h"
#include "Journal.h"
#include "Notices.h"
#include "Preferences.h"
#include "SimAppStatus.h"
#include "SimCameraOps.h"
#include "SimDocManager.h"
#include "SimLiveLoop.h"
#include "SimMdi.h"
#include "SimPlayer.h"
#include "SimRecorder.h"
#include "SimSaver.h"
#include "SimSignalDevices.h"
#include "SimUndo.h"
#include "SimViewOps.h"
#include "StatusFlags.h"
#include "SyncSignal.h"
#include "Translator.h"
#include "UnsavedGuard.h"
#include "UpdateCycle.h"
#include "ZebHost.h"

#include <QPointer>
#include <QWidget>

class AppDesk;
class Clock;
class MessageDesk;
struct Answer;
struct Rig;

/// The stand-in for the host application: what `ZebHost` promises, on simulated cameras.
///
/// Works with and without windows. The operations of `ZebHost` are the plug-in's, and the changing ones stand in the
/// journal; the host's own parts use what is behind them (`prefs`, `cameras`, `updates`) and leave no trace there.
class SimHost : public ZebHost {
public:
    /// `clock` and `desk` must outlive the host. `prefsPath` as in `Preferences`; a problem with that file is shown.
    SimHost(Clock& clock, MessageDesk& desk, const QString& prefsPath = {});

    /// The windows; null at first, not owned.
    void setMainWindow(QWidget* window) { m_mainWindow = window; }
    void setMdiWidget(QWidget* widget) { m_mdiWidget = widget; }
    /// The windows that the host opens by itself; null at first, not owned.
    void setAppDesk(AppDesk* desk) { m_appDesk = desk; }
    /// Speaks another language, as "ja"; false when there is no catalogue for it. English at first.
    bool setLanguage(const QString& language) { return m_translator.load(language); }
    /// Replaces all cameras and hubs. Keys count from 1 again; documents of the old ones are dead.
    void setRig(const Rig& rig);

    Clock& clock() { return m_clock; }
    Journal& journal() { return m_journal; }
    const HostCalls& calls() const { return m_calls; }
    FaultPlan& faults() { return m_faults; }
    CameraBank& cameras() { return m_cameras; }
    const CameraBank& cameras() const { return m_cameras; }
    const Journal& journal() const { return m_journal; }
    Preferences& prefs() { return m_prefs; }
    const Preferences& prefs() const { return m_prefs; }
    StatusFlags& flags() { return m_flags; }
    SyncSignal& syncSignal() { return m_syncSignal; }
    HostEvents& events() { return m_events; }
    const UnsavedGuard& unsavedGuard() const { return m_unsavedGuard; }
    UpdateCycle& updates() { return m_updates; }

    SimAppStatus& appStatus() override { return m_appStatus; }
    SimDocManager& docManager() override { return m_docManager; }
    SimLiveLoop& liveLoop() override { return m_liveLoop; }
    SimPlayer& player() override { return m_player; }
    SimRecorder& recorder() override { return m_recorder; }
    SimCameraOps& cameraOps() override { return m_cameraOps; }
    SimSaver& saver() override { return m_saver; }
    SimViewOps& viewOps() override { return m_viewOps; }
    SimMdi& mdi() override { return m_mdi; }
    SimUndo& undo() override { return m_undo; }
    SimSignalDevices& signalDevices() override { return m_signalDevices; }

    int getOperatingMode() const override { return m_appStatus.mode(); }
    bool isLiveMode() const override { return m_appStatus.mode() == zeb::LiveMode; }
    bool isMemoryMode() const override { return m_appStatus.mode() == zeb::MemoryMode; }
    bool isFileMode() const override { return m_appStatus.mode() == zeb::FileMode; }

    QVariant getPref(const QString& key, const QVariant& defaultValue = {}) const override;
    int getPrefInt(const QString& key, const QVariant& defaultValue = {}) const override;
    bool getPrefBool(const QString& key, const QVariant& defaultValue = {}) const override;
    float getPrefFloat(const QString& key, const QVariant& defaultValue = {}) const override;
    QString getPrefString(const QString& key, const QVariant& defaultValue = {}) const override;
    void setPref(const QString& key, const QVariant& value) override;
    void setPrefInt(const QString& key, int value) override;
    void setPrefBool(const QString& key, bool value) override;
    void setPrefFloat(const QString& key, float value) override;
    void setPrefString(const QString& key, const QString& value) override;

    bool isPrefsRestored() const override;
    void setPrefsRestored(int state) override;

    QString translate(const QString& text) const override;

    /// Boxes of the host's own: a text with a list, a failure with its line in the log.
    void tell(Message::Kind kind, const QString& text, const QStringList& list = {}, QWidget* parent = nullptr);
    void tellFailure(const std::exception& e);
    /// Asks a question with answers of its own, of which Enter means `preferred`; answers the chosen one of `buttons`,
    /// 0 when the box was left.
    int choose(const QString& text, QWidget* parent, const ButtonTexts& buttons, int preferred,
               const QStringList& list = {});

    void info(const QString& message, QWidget* parent) override;
    void warn(const QString& message, QWidget* parent) override;
    void warnList(const QString& message, const QStringList& messages, QWidget* parent) override;
    void alert(const QString& message, QWidget* parent) override;
    void alertWithDontShowAgain(const QString& message, const QString& prefKey, QWidget* parent,
                                const ButtonTexts& buttons) override;
    void alertList(const QString& message, const QStringList& messages, QWidget* parent) override;
    bool confirm(const QString& message) override;
    bool confirmModal(const QString& message, QWidget* parent, const ButtonTexts& buttons) override;
    bool confirmWithDontShowAgain(const QString& message, const QString& prefKey, QWidget* parent,
                                  const ButtonTexts& buttons) override;
    void errorHandler(const std::exception& e) override;

    ZebPrefsDialog* getPrefsDialog() override;
    void openPrefsEthernetSettings() override;
    void openAboutDialog() override;
    /// Without an application's windows it only waits.
    void execProgress(const QString& text, QFutureWatcherBase& watcher) override;
    void prepareSupportFile(ZebSupportFile& file) override;
    bool exportSupportFile(const QString& path, const ZebSupportFile& file) override;
    void saveFiles() override;
    void saveLayoutFiles() override;
    bool hasWrenWindow() const override;
    void hideSelectBox() override;
    bool isShownDropBox() const override;
    void showDropDownBox(const QString& key, const QRect& anchor) override;
    void hideDropDownBox(const QString& key) override;
    void hideDropDownBoxAt(const QString& key, const QPoint& point) override;
    QObject* getAppObject() override { return &m_appObject; }
    QObject* getMainObject() override { return &m_mainObject; }

    QWidget* getMainWindow() const override { return m_mainWindow; }
    QWidget* getMdiWidget() const override { return m_mdiWidget; }
    void attachBridge(QWebView* view, ZebPageBridge* bridge) override;

    void updateUI(unsigned int mask, bool refresh) override;
    void deterUpdateUI(bool deter) override;
    bool isUpdateIgnore() const override;
    void refreshTools() override;

    /// Shows as the state "IsModalessDialogTextFocussing".
    void setTextBoxFocusState(bool focused) override;

    bool isViewerRunning() const override { return m_viewerSuspended == 0; }
    void suspendViewer() override;
    void resumeViewer() override;

    bool isReady() const override { return !isApplicationClosing(); }
    bool isApplicationClosing() const override;
    bool isWindowStateSaveSuppressed() const override;
    bool isOtherPluginOpen() const override;
    bool isSelectionKept() const override;
    bool getTriggerTesting() const override;
    void setTriggerTesting(bool on) override;
    bool isTracking() const override;
    bool isShading() const override;
    bool isAutoFocussing() const override;
    bool isCurrentAutoFocus(int mode) const override;
    bool isCycleViewBlocked() const override;
    bool isNotLivePage(bool orDeviceSettings) const override;
    bool isPrefDialogOpening() const override;
    bool isModalDialogOpening() const override;
    bool isZebActive() const override;
    QWidget* getFullScreenWidget() const override;
    bool isTextBoxFocussing() const override;
    bool isToolActive(const QString& tool) const override;
    bool isPluginAvailable(const QString& name) const override;
    bool isPluginOkPattern(const QString& name) const override;
    QList<int> getSyncCapableCameraTypes() const override;
    bool isCapable(const QString& capability, DOC_Interface* doc, int head) const override;

private:
    void runUpdateCycle();
    /// No exception reaches the event loop; a failure is one of this cycle's.
    void guarded(QStringList& failures, const std::function<void()>& work);
    void tellNew(const QStringList& failures);
    /// Says something beside the work that goes on, and in the log.
    void notify(Message::Kind kind, const QString& text);
    bool isInPluginDialog(const QWidget* widget) const;
    Answer show(const Message& box);
    bool mayLose(const QString& question, const QStringList& lines);
    bool showSilenceable(Message box, const QString& prefKey);
    Message message(int kind, const QString& text, QWidget* parent) const;
    void storePref(const char* call, const QString& key, const QVariant& value);

    Clock& m_clock;
    MessageDesk& m_desk;
    Preferences m_prefs;
    Journal m_journal;
    FaultPlan m_faults;
    const HostCalls m_calls;
    CameraBank m_cameras;
    StatusFlags m_flags;
    HostEvents m_events;
    UpdateCycle m_updates;
    BridgeDesk m_bridges;
    Translator m_translator;
    AppObject m_appObject;
    /// The main window as pages see it: they can name it, no more.
    QObject m_mainObject;
    AppDesk* m_appDesk = nullptr;
    QPointer<QWidget> m_mainWindow;
    QPointer<QWidget> m_mdiWidget;
    int m_viewerSuspended = 0;
    bool m_prefsRestored;
    /// What the last update cycle met.
    QStringList m_cycleFailures;

    Notices m_notices;
    const UnsavedGuard m_unsavedGuard;
    SimAppStatus m_appStatus;
    SimSignalDevices m_signalDevices;
    SyncSignal m_syncSignal;
    SimRecorder m_recorder;
    SimDocManager m_docManager;
    SimLiveLoop m_liveLoop;
    SimPlayer m_player;
    SimSaver m_saver;
    SimCameraOps m_cameraOps;
    SimViewOps m_viewOps;
    SimMdi m_mdi;
    SimUndo m_undo;
};
