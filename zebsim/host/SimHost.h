#pragma once

#include "AppObject.h"
#include "CameraBank.h"
#include "FaultPlan.h"
#include "HostBatch.h"
#include "HostCalls.h"
#include "HostContext.h"
#include "HostEvents.h"
#include "HostMessages.h"
#include "HostPrefs.h"
#include "HostStates.h"
#include "HostUpdates.h"
#include "HostWindows.h"
#include "ImageEffects.h"
#include "ImagePlugins.h"
#include "Journal.h"
#include "MediaShelf.h"
#include "Notices.h"
#include "Preferences.h"
#include "RestartWatch.h"
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

class Clock;
class MessageDesk;
struct Rig;

/// The stand-in for the host application: what `ZebHost` promises, on simulated cameras. It is as long as `ZebHost` has
/// operations. GUI thread, but what says "any thread".
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
    /// The windows that the host opens by itself, not owned; null, as at first, for none.
    void setWindows(HostWindows* windows) { m_windows = windows ? windows : &m_noWindows; }
    /// Speaks another language, as "ja"; false when there is no catalogue for it. English at first.
    bool setLanguage(const QString& language) { return m_translator.load(language); }
    /// Replaces all cameras and hubs. Keys count from 1 again; documents of the old ones are dead.
    void setRig(const Rig& rig);
    /// Brings recording and restarts up to the clock; called often.
    void proceed() {
        m_recorder.proceed();
        m_restarts.proceed();
    }
    /// The user switches a camera off and on again.
    void reboot(DOCKEY key) { m_restarts.reboot(key); }
    void expectNoRestart() { m_restarts.expectNone(); }

    Clock& clock() { return m_clock; }
    Journal& journal() { return m_journal; }
    const HostCalls& calls() const { return m_calls; }
    FaultPlan& faults() { return m_faults; }
    CameraBank& cameras() { return m_cameras; }
    const CameraBank& cameras() const { return m_cameras; }
    HostBatch& batch() { return m_batch; }
    const Journal& journal() const { return m_journal; }
    Preferences& prefs() { return m_prefs; }
    const Preferences& prefs() const { return m_prefs; }
    StatusFlags& flags() { return m_flags; }
    MediaShelf& shelf() { return m_shelf; }
    SyncSignal& syncSignal() { return m_syncSignal; }
    HostEvents& events() { return m_events; }
    const UnsavedGuard& unsavedGuard() const { return m_unsavedGuard; }
    UpdateCycle& updates() { return m_updates; }
    HostMessages& messages() { return m_messages; }

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

    QString getVersionText() const override;

    QVariant getPref(const QString& key, const QVariant& defaultValue = {}) const override {
        return m_hostPrefs.get(OPERATION("getPref"), key, defaultValue);
    }
    int getPrefInt(const QString& key, const QVariant& defaultValue = {}) const override {
        return m_hostPrefs.get(OPERATION("getPrefInt"), key, defaultValue).toInt();
    }
    bool getPrefBool(const QString& key, const QVariant& defaultValue = {}) const override {
        return m_hostPrefs.get(OPERATION("getPrefBool"), key, defaultValue).toBool();
    }
    float getPrefFloat(const QString& key, const QVariant& defaultValue = {}) const override {
        return m_hostPrefs.get(OPERATION("getPrefFloat"), key, defaultValue).toFloat();
    }
    QString getPrefString(const QString& key, const QVariant& defaultValue = {}) const override {
        return m_hostPrefs.get(OPERATION("getPrefString"), key, defaultValue).toString();
    }
    void setPref(const QString& key, const QVariant& value) override {
        m_hostPrefs.set(OPERATION("ZebHost::setPref"), key, value);
    }
    void setPrefInt(const QString& key, int value) override {
        m_hostPrefs.set(OPERATION("ZebHost::setPrefInt"), key, value);
    }
    void setPrefBool(const QString& key, bool value) override {
        m_hostPrefs.set(OPERATION("ZebHost::setPrefBool"), key, value);
    }
    void setPrefFloat(const QString& key, float value) override {
        m_hostPrefs.set(OPERATION("ZebHost::setPrefFloat"), key, value);
    }
    void setPrefString(const QString& key, const QString& value) override {
        m_hostPrefs.set(OPERATION("ZebHost::setPrefString"), key, value);
    }

    QString getDefaultColumnOrder(int tab) const override { return m_hostPrefs.defaultColumnOrder(tab); }

    bool isPrefsRestored() const override { return m_hostPrefs.isRestored(); }
    void setPrefsRestored(int state) override { m_hostPrefs.setRestored(state); }
    void clearPrefsRestored(int mode) override { m_hostPrefs.clearRestored(mode); }

    QString translate(const QString& text) const override { return m_translator.translate(text); }

    void info(const QString& text, QWidget* parent) override {
        pluginBox(OPERATION("info")).tell(Message::Info, text, {}, parent);
    }
    void warn(const QString& text, QWidget* parent) override {
        pluginBox(OPERATION("warn")).tell(Message::Warn, text, {}, parent);
    }
    void warnList(const QString& text, const QStringList& list, QWidget* parent) override {
        pluginBox(OPERATION("warnList")).tell(Message::Warn, text, list, parent);
    }
    void alert(const QString& text, QWidget* parent) override {
        pluginBox(OPERATION("alert")).tell(Message::Alert, text, {}, parent);
    }
    void alertWithDontShowAgain(const QString& text, const QString& prefKey, QWidget* parent,
                                const ButtonTexts& buttons) override {
        pluginBox(OPERATION("alertWithDontShowAgain")).showSilenceable(Message::Alert, text, prefKey, parent, buttons);
    }
    void alertList(const QString& text, const QStringList& list, QWidget* parent) override {
        pluginBox(OPERATION("alertList")).tell(Message::Alert, text, list, parent);
    }
    bool confirm(const QString& text) override { return pluginBox(OPERATION("confirm")).confirm(text); }
    bool confirmModal(const QString& text, QWidget* parent, const ButtonTexts& buttons) override {
        return pluginBox(OPERATION("confirmModal")).confirm(text, parent, buttons);
    }
    bool confirmWithDontShowAgain(const QString& text, const QString& prefKey, QWidget* parent,
                                  const ButtonTexts& buttons) override {
        return pluginBox(OPERATION("confirmWithDontShowAgain"))
            .showSilenceable(Message::Confirm, text, prefKey, parent, buttons);
    }
    void errorHandler(const std::exception& e) override { pluginBox(OPERATION("errorHandler")).tellFailureOrNews(e); }

    ZebPrefsDialog* getPrefsDialog() override { return askWindows(OPERATION("getPrefsDialog")).prefsDialog(); }
    void openPrefsEthernetSettings() override {
        tellWindows(OPERATION("ZebHost::openPrefsEthernetSettings")).openEthernetSettings();
    }
    void openAboutDialog() override { tellWindows(OPERATION("ZebHost::openAboutDialog")).openAbout(); }
    void execProgress(const QString& text, QFutureWatcherBase& watcher) override {
        m_calls.change(OPERATION("ZebHost::execProgress"), {text});
        m_docManager.endTurn();
        m_windows->runProgress(text, watcher);
    }
    void prepareSupportFile(ZebSupportFile& file) override;
    bool exportSupportFile(const QString& path, const ZebSupportFile& file) override;
    void saveFiles() override { tellWindows(OPERATION("ZebHost::saveFiles")).save(false); }
    void saveLayoutFiles() override { tellWindows(OPERATION("ZebHost::saveLayoutFiles")).save(true); }
    bool openCustomTimeCodeDialog() override {
        return tellWindows(OPERATION("ZebHost::openCustomTimeCodeDialog")).openTimeCode();
    }
    bool openSaveInfoView(const DocKeyList& keys) override {
        return tellWindows(OPERATION("ZebHost::openSaveInfoView"), {Journal::keyList(keys)}).openSaveInfo(keys);
    }
    /// The preference `tal2/folder`.
    void getTal2Folder(QString& out) const override {
        out = m_hostPrefs.get(OPERATION("getTal2Folder"), QStringLiteral("tal2/folder"), {}).toString();
    }
    bool hasWrenWindow() const override;
    void hideSelectBox() override {
        m_calls.change(OPERATION("ZebHost::hideSelectBox"));
        hideDropDownBox({});
    }
    bool isShownDropBox() const override { return askWindows(OPERATION("isShownDropBox")).isDropDownBoxShown(); }
    void showDropDownBox(const QString& key, const QRect& anchor) override {
        tellWindows(OPERATION("ZebHost::showDropDownBox"), {key}).showDropDownBox(key, anchor);
    }
    void hideDropDownBox(const QString& key) override { askWindows(OPERATION("hideDropDownBox")).hideDropDownBox(key); }
    void hideDropDownBoxAt(const QString& key, const QPoint& point) override {
        m_calls.ask(OPERATION("hideDropDownBoxAt"));
        if (!m_windows->dropDownBoxRect(key).contains(point)) {
            m_windows->hideDropDownBox(key);
        }
    }
    QObject* getAppObject() override { return &m_appObject; }
    QObject* getMainObject() override { return &m_mainObject; }

    QWidget* getMainWindow() const override { return m_mainWindow; }
    QWidget* getMdiWidget() const override { return m_mdiWidget; }
    /// The page sees `app` too.
    void attachBridge(QWebView* view, ZebPageBridge* bridge) override;

    void updateUI(unsigned int mask, bool refresh) override { m_hostUpdates.updateUI(mask, refresh); }
    void deterUpdateUI(bool deter) override { m_hostUpdates.deterUpdateUI(deter); }
    bool isUpdateIgnore() const override { return m_flags.isOn(StatusFlags::IsUpdateIgnore); }
    void refreshTools() override { m_hostUpdates.refreshTools(); }

    /// Shows as the state "IsModalessDialogTextFocussing".
    void setTextBoxFocusState(bool focused) override {
        m_calls.note("ZebHost::setTextBoxFocusState", {focused});
        m_flags.set(StatusFlags::IsModalessDialogTextFocussing, focused);
    }

    bool isViewerRunning() const override { return m_hostUpdates.isViewerRunning(); }
    void suspendViewer() override { m_hostUpdates.suspendViewer(); }
    void resumeViewer() override { m_hostUpdates.resumeViewer(); }

    bool isReady() const override { return !isApplicationClosing(); }
    bool isApplicationClosing() const override { return m_flags.isOn(StatusFlags::IsApplicationClosing); }
    bool isWindowStateSaveSuppressed() const override { return m_flags.isOn(StatusFlags::IsWindowStateSaveSuppressed); }
    bool isOtherPluginOpen() const override { return m_flags.isOn(StatusFlags::IsOtherPluginOpen); }
    bool isSelectionKept() const override { return m_flags.isOn(StatusFlags::IsSelectionKept); }
    bool getTriggerTesting() const override { return m_flags.isOn(StatusFlags::IsTriggerTesting); }
    void setTriggerTesting(bool on) override {
        m_calls.note("ZebHost::setTriggerTesting", {on});
        m_flags.set(StatusFlags::IsTriggerTesting, on);
    }
    bool isTracking() const override { return m_flags.isOn(StatusFlags::IsTracking); }
    bool isShading() const override { return m_flags.isOn(StatusFlags::IsShading); }
    bool isAutoFocussing() const override { return m_flags.isOn(StatusFlags::IsAutoFocussing); }
    bool isCurrentAutoFocus(int /*mode*/) const override { return m_flags.isOn(StatusFlags::IsCurrentAutoFocus); }
    bool isCycleViewBlocked() const override { return m_flags.isOn(StatusFlags::IsCycleViewBlocked); }
    bool isNotLivePage(bool orDeviceSettings) const override {
        return m_flags.isOn(orDeviceSettings ? StatusFlags::IsNotLiveAndDeviceSettingPage : StatusFlags::IsNotlivePage);
    }
    bool isPrefDialogOpening() const override { return m_flags.isOn(StatusFlags::IsPrefDialogOpening); }
    bool isModalDialogOpening() const override { return m_states.isModalDialogOpening(); }
    bool isZebActive() const override { return m_states.isZebActive(m_mainWindow); }
    QWidget* getFullScreenWidget() const override { return m_states.fullScreenWidget(m_mainWindow); }
    bool isTextBoxFocussing() const override { return m_flags.isOn(StatusFlags::IsModalessDialogTextFocussing); }
    bool isToolActive(const QString& tool) const override { return m_docManager.isToolActive(tool); }
    bool isPluginAvailable(const QString& name) const override { return findImageEffect(name) != nullptr; }
    bool isPluginOkPattern(const QString& name) const override {
        const ImageEffect* effect = findImageEffect(name);
        return effect != nullptr && effect->needsOk;
    }
    QList<int> getSyncCapableCameraTypes() const override { return m_states.syncCapableCameraTypes(); }
    bool isCapable(const QString& capability, DOC_Interface* doc, int /*head*/) const override {
        return m_states.isCapable(capability, doc);
    }

private:
    /// What the plug-in asks of the windows, and what it tells them to do.
    HostWindows& askWindows(HostOperation operation) const {
        m_calls.ask(operation);
        return *m_windows;
    }
    HostWindows& tellWindows(HostOperation operation, const QVariantList& args = {}) const {
        m_calls.change(operation, args);
        return *m_windows;
    }
    /// What a box of the plug-in's begins with.
    HostMessages& pluginBox(HostOperation operation) {
        m_calls.ask(operation);
        return m_messages;
    }

    Clock& m_clock;
    Preferences m_prefs;
    Journal m_journal;
    FaultPlan m_faults;
    const HostCalls m_calls;
    CameraBank m_cameras;
    StatusFlags m_flags;
    HostEvents m_events;
    MediaShelf m_shelf{m_events};
    UpdateCycle m_updates;
    Translator m_translator;
    AppObject m_appObject;
    /// The main window as pages see it: they can name it, no more.
    QObject m_mainObject;
    HostWindows m_noWindows;
    HostWindows* m_windows = &m_noWindows;
    QPointer<QWidget> m_mainWindow;
    QPointer<QWidget> m_mdiWidget;

    const HostContext m_context{m_clock,      m_calls,        m_cameras,   m_batch,      m_prefs,
                                m_flags,      m_events,       m_updates,   m_translator, m_messages,
                                m_notices,    m_unsavedGuard, m_appStatus, m_syncSignal, m_recorder,
                                m_docManager, m_saver,        m_shelf,     m_windows};
    HostBatch m_batch;
    HostMessages m_messages;
    HostPrefs m_hostPrefs;
    HostStates m_states;
    HostUpdates m_hostUpdates;
    Notices m_notices;
    const UnsavedGuard m_unsavedGuard;
    SimAppStatus m_appStatus;
    SimSignalDevices m_signalDevices;
    SyncSignal m_syncSignal;
    SimRecorder m_recorder;
    SimDocManager m_docManager;
    RestartWatch m_restarts;
    SimLiveLoop m_liveLoop;
    SimPlayer m_player;
    SimSaver m_saver;
    SimCameraOps m_cameraOps;
    SimViewOps m_viewOps;
    SimMdi m_mdi;
    SimUndo m_undo;
    const ImagePlugins m_imagePlugins;
};
