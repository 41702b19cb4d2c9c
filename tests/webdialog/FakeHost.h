#pragma once

#include "FakeDoc.h"
#include "Journal.h"
#include "PLG_Interface.h"
#include "ZebAppStatus.h"
#include "ZebCameraOps.h"
#include "ZebDocManager.h"
#include "ZebHost.h"
#include "ZebLiveLoop.h"
#include "ZebMdi.h"
#include "ZebPageBridge.h"
#include "ZebPlayer.h"
#include "ZebRecorder.h"
#include "ZebSaver.h"
#include "ZebSupportFile.h"
#include "ZebUndo.h"
#include "ZebViewOps.h"

#include <QFutureWatcher>
#include <QHash>
#include <QPointer>
#include <QSet>
#include <QWebFrame>
#include <QWebPage>
#include <QWebView>
#include <QWidget>

#include <functional>
#include <stdexcept>

/// A host that answers from its public members and notes in the journal what it was asked to do.
class FakeHost : public ZebHost,
                 public ZebAppStatus,
                 public ZebDocManager,
                 public ZebLiveLoop,
                 public ZebPlayer,
                 public ZebRecorder,
                 public ZebCameraOps,
                 public ZebSaver,
                 public ZebViewOps,
                 public ZebMdi,
                 public ZebUndo {
public:
    int mode = zeb::LiveMode;
    QHash<QString, QVariant> prefs;
    bool viewerRunning = false;
    bool closing = false;
    bool wrenRunning = false;
    bool userAgrees = true;
    bool livePaused = false;
    QWidget* mainWindow = nullptr;
    QWidget* mdiWidget = nullptr;
    QHash<QString, PLG_Interface*> plugins;
    PLG_Interface* currentPlugin = nullptr;
    FakeDoc* currentDoc = nullptr;
    int selectedDocs = 0;
    int windows = 0;
    int imageWindows = 0;
    int recordingState = zeb::RecordLive;
    /// The questions about its state, by name and with their argument, that the host answers with yes.
    QSet<QString> yes;
    QHash<DOCKEY, FakeDoc*> docs;
    /// Keys that count as connected; a key without a document is a camera that is gone.
    DocKeyList connectedKeys;
    DocKeyList selectedKeys;
    unsigned int variable = 0;
    /// Of every view, as a fraction of a full turn.
    double rotation = 0.0;
    ZebPrefsDialog* prefsDialog = nullptr;
    QObject appObject;
    QObject mainObject;
    QMutex docMutex;
    /// Runs in the place of a message box.
    std::function<void()> onBox = [] {};
    /// Runs in the place of a modal progress, and of the writing of a support file (on its thread).
    std::function<void(QFutureWatcherBase&)> onProgress = [](QFutureWatcherBase&) {};
    std::function<bool(const QString&, const ZebSupportFile&)> onExport = [](const QString&, const ZebSupportFile&) {
        return true;
    };
    /// Name of an operation that throws, "*" for all.
    QString failing;

    ZebAppStatus& appStatus() override { return *this; }
    ZebDocManager& docManager() override { return *this; }
    ZebLiveLoop& liveLoop() override { return *this; }
    ZebPlayer& player() override { return *this; }
    ZebRecorder& recorder() override { return *this; }
    ZebCameraOps& cameraOps() override { return *this; }
    ZebSaver& saver() override { return *this; }
    ZebViewOps& viewOps() override { return *this; }
    ZebMdi& mdi() override { return *this; }
    ZebUndo& undo() override { return *this; }

    int getOperatingMode() const override { return mode; }
    bool isLiveMode() const override { return mode == zeb::LiveMode; }
    bool isMemoryMode() const override { return mode == zeb::MemoryMode; }
    bool isFileMode() const override { return mode == zeb::FileMode; }

    QVariant getPref(const QString& key, const QVariant& fallback = {}) const override {
        failIf("getPref");
        return prefs.value(key, fallback);
    }
    int getPrefInt(const QString& key, const QVariant& fallback = {}) const override {
        return getPref(key, fallback).toInt();
    }
    bool getPrefBool(const QString& key, const QVariant& fallback = {}) const override {
        return getPref(key, fallback).toBool();
    }
    float getPrefFloat(const QString& key, const QVariant& fallback = {}) const override {
        return getPref(key, fallback).toFloat();
    }
    QString getPrefString(const QString& key, const QVariant& fallback = {}) const override {
        return getPref(key, fallback).toString();
    }
    void setPref(const QString& key, const QVariant& value) override { store("setPref", key, value); }
    void setPrefInt(const QString& key, int value) override { store("setPrefInt", key, value); }
    void setPrefBool(const QString& key, bool value) override { store("setPrefBool", key, value); }
    void setPrefFloat(const QString& key, float value) override { store("setPrefFloat", key, value); }
    void setPrefString(const QString& key, const QString& value) override { store("setPrefString", key, value); }

    QString translate(const QString& text) const override { return QStringLiteral("<") % text % QStringLiteral(">"); }

    void info(const QString& message, QWidget*) override { box("info", message); }
    void warn(const QString& message, QWidget*) override { box("warn", message); }
    void warnList(const QString& message, const QStringList& messages, QWidget*) override {
        box("warnList", message % QLatin1Char('|') % messages.join(QLatin1Char('|')));
    }
    void alert(const QString& message, QWidget*) override { box("alert", message); }
    void alertList(const QString& message, const QStringList& messages, QWidget*) override {
        box("alertList", message % QLatin1Char('|') % messages.join(QLatin1Char('|')));
    }
    bool confirm(const QString& message) override { return confirmModal(message, nullptr, {}); }
    bool confirmModal(const QString& message, QWidget*, const ButtonTexts&) override {
        box("confirmModal", message);
        return userAgrees;
    }
    bool confirmWithDontShowAgain(const QString& message, const QString&, QWidget*, const ButtonTexts&) override {
        return confirmModal(message, nullptr, {});
    }
    void errorHandler(const std::exception& e) override { box("errorHandler", QString::fromUtf8(e.what())); }

    bool isPrefsRestored() const override { return answer("isPrefsRestored"); }
    void setPrefsRestored(int state) override { note("setPrefsRestored", state); }
    ZebPrefsDialog* getPrefsDialog() override {
        failIf("getPrefsDialog");
        return prefsDialog;
    }
    void openPrefsEthernetSettings() override { box("openPrefsEthernetSettings", {}); }
    void openAboutDialog() override { box("openAboutDialog", {}); }
    void execProgress(const QString& text, QFutureWatcherBase& watcher) override {
        note("execProgress", text);
        onProgress(watcher);
    }
    void prepareSupportFile(ZebSupportFile& file) override {
        note("prepareSupportFile");
        file.files[QStringLiteral("state.txt")] = QByteArrayLiteral("state");
    }
    bool exportSupportFile(const QString& path, const ZebSupportFile& file) override { return onExport(path, file); }
    bool hasWrenWindow() const override { return answer("hasWrenWindow"); }
    void hideSelectBox() override { note("hideSelectBox"); }
    bool isShownDropBox() const override { return answer("isShownDropBox"); }
    void showDropDownBox(const QString& key, const QRect& anchor) override {
        note("showDropDownBox", QStringLiteral("%1 (%2,%3)-(%4,%5)")
                                    .arg(key)
                                    .arg(anchor.left())
                                    .arg(anchor.top())
                                    .arg(anchor.right())
                                    .arg(anchor.bottom()));
    }
    void hideDropDownBox(const QString& key) override { note("hideDropDownBox", key); }
    void hideDropDownBoxAt(const QString& key, const QPoint& point) override {
        note("hideDropDownBoxAt", QStringLiteral("%1 (%2,%3)").arg(key).arg(point.x()).arg(point.y()));
    }
    QObject* getAppObject() override { return &appObject; }
    QObject* getMainObject() override { return &mainObject; }

    QWidget* getMainWindow() const override { return mainWindow; }
    QWidget* getMdiWidget() const override { return mdiWidget; }
    void attachBridge(QWebView* view, ZebPageBridge* bridge) override;

    void updateUI(unsigned int mask, bool) override { note("updateUI", mask); }
    void deterUpdateUI(bool deter) override { note("deterUpdateUI", deter); }
    bool isViewerRunning() const override { return viewerRunning; }
    void suspendViewer() override { note("suspendViewer"); }
    void resumeViewer() override { note("resumeViewer"); }

    bool isUpdateIgnore() const override { return answer("isUpdateIgnore"); }
    void refreshTools() override { note("refreshTools"); }
    bool isReady() const override { return answer("isReady"); }
    bool isApplicationClosing() const override { return closing; }
    bool isWindowStateSaveSuppressed() const override { return false; }
    bool isOtherPluginOpen() const override { return answer("isOtherPluginOpen"); }
    bool isSelectionKept() const override { return false; }
    bool getTriggerTesting() const override { return false; }
    void setTextBoxFocusState(bool focused) override { note("setTextBoxFocusState", focused); }
    bool isToolActive(const QString&) const override { return false; }
    bool isPluginAvailable(const QString&) const override { return false; }
    bool isPluginOkPattern(const QString&) const override { return false; }
    bool isCapable(const QString&, DOC_Interface*, int) const override { return false; }

    PLG_Interface* getPlugin(const QString& name) const override { return plugins.value(name); }
    PLG_Interface* getCurrentPlugin() const override { return currentPlugin; }
    QString getCurrentPluginName() const override { return currentPlugin ? currentPlugin->getName() : QString(); }
    bool isPluginEnabledFor(const QString&, DOC_Interface*) const override { return false; }
    void openPlugin(const QString& name) override { note("openPlugin", name); }
    void closePlugin(const QString& name) override { note("closePlugin", name); }
    void clearCurrentPlugin() override { note("clearCurrentPlugin"); }
    bool isMVersion() const override { return answer("isMVersion"); }
    void closePanel() override { note("closePanel"); }
    void closeAuxiliaryPanel() override {}
    void setWrenRunning(bool running) override { wrenRunning = running; }
    bool isWrenRunning() const override { return wrenRunning; }
    void notifyPluginShown(PLG_Interface*) override { note("notifyPluginShown"); }
    void notifyPluginClosed(PLG_Interface*) override { note("notifyPluginClosed"); }
    void enterLiveMode() override {}
    void enterMemoryMode() override {}

    DOC_Interface* getDoc(DOCKEY key, int) override { return docs.value(key); }
    DOC_Interface* getDocAny(DOCKEY key) override { return docs.value(key); }
    DOC_Interface* getCurrentDoc() override { return currentDoc; }
    bool isCurrentDoc(DOCKEY) const override { return false; }
    DOCKEY getCurrentDockey(int) const override {
        failIf("getCurrentDockey");
        return currentDoc != nullptr ? currentDoc->getKey() : zeb::NoDocKey;
    }
    void setCurrentDoc(DOCKEY key, int) override { note("setCurrentDoc", key); }
    DocKeyList getDocKeys(int) const override {
        failIf("getDocKeys");
        return connectedKeys;
    }
    DocList getCameraDocs() override {
        DocList all;
        for (const DOCKEY key : connectedKeys) {
            if (DOC_Interface* doc = docs.value(key)) all.append(doc);
        }
        return all;
    }
    DocKeyList getSelectedDocKeys(int) const override {
        failIf("getSelectedDocKeys");
        return selectedKeys;
    }
    void setSelectedDocs(const DocKeyList& keys, int) override {
        QStringList texts;
        for (const DOCKEY key : keys) texts.append(QString::number(key));
        note("setSelectedDocs", texts.join(QLatin1Char(' ')));
    }
    void selectAllDocs(QObject*) override { note("selectAllDocs"); }
    bool isWaveDataAcquisition() const override { return answer("isWaveDataAcquisition"); }
    void refreshDocList(int kind) override { note("refreshDocList", kind); }
    DocKeyList getConnectedDocKeys(int) const override { return connectedKeys; }
    DocKeyList getLiveDocKeys(int, int) const override { return connectedKeys; }
    void selectDoc(DOCKEY) override {}
    void deselectDoc(DOCKEY) override {}
    void connectDocs(const DocKeyList&) override {}
    void disconnectDocs(const DocKeyList&) override {}
    void deleteAllDocs(int, int) override { note("deleteAllDocs"); }
    void editDoc(DOCKEY) override {}
    bool sharesDeviceWithLockedHead(DOC_Interface*, bool, bool) override { return false; }
    QMutex* getDocMutex() override { return &docMutex; }
    void beginDocEdit() override { note("beginDocEdit"); }
    void beginDocEditNotify() override { note("beginDocEditNotify"); }
    void endDocEdit() override { note("endDocEdit"); }
    void commitDocEdit() override { note("commitDocEdit"); }
    void setQuickTool(const QString& tool, bool on) override {
        note("setQuickTool", QString(tool % QLatin1Char(' ') % QVariant(on).toString()));
    }
    void setActiveQuickTool(const QString& tool) override { note("setActiveQuickTool", tool); }
    void toolSelect(const QString&, bool) override {}
    void toolSelectAll(const QString&, bool, bool) override {}
    void toolBegin(int, const QString&) override {}
    void toolEnd(const QString&) override {}
    void toolApply(const QString&) override {}

    void pauseLive(int) override { pause("pauseLive"); }
    void resumeLive() override {
        livePaused = false;
        note("resumeLive");
    }
    bool isLivePaused() const override { return livePaused; }
    void restartLive(int, int, int) override { pause("restartLive"); }
    void restartLiveAfterTool(int) override {}
    void restartLiveAfterEnd(int) override {}

    void pausePlayer() override { note("pausePlayer"); }
    void resumePlayer() override { note("resumePlayer"); }

    bool isTracking() const override { return answer("isTracking"); }
    bool isShading() const override { return answer("isShading"); }
    bool isAutoFocussing() const override { return answer("isAutoFocussing"); }
    bool isCurrentAutoFocus(int kind) const override { return answer("isCurrentAutoFocus", kind); }
    bool isCycleViewBlocked() const override { return answer("isCycleViewBlocked"); }
    bool isNotLivePage(bool orDeviceSettings) const override { return answer("isNotLivePage", orDeviceSettings); }
    bool isPrefDialogOpening() const override { return answer("isPrefDialogOpening"); }
    bool isModalDialogOpening() const override { return answer("isModalDialogOpening"); }
    bool isZebActive() const override { return answer("isZebActive"); }
    QWidget* getFullScreenWidget() const override { return answer("getFullScreenWidget") ? mainWindow : nullptr; }
    bool isTextBoxFocussing() const override { return answer("isTextBoxFocussing"); }

    bool isAutoExposureSetting() const override { return answer("isAutoExposureSetting"); }
    bool isHwTriggerSetting() const override { return answer("isHwTriggerSetting"); }
    bool isVariableSetting() const override { return answer("isVariableSetting"); }
    bool isSendingNodeCommand() const override { return answer("isSendingNodeCommand"); }
    bool isAdjustingImage() const override { return answer("isAdjustingImage"); }
    bool isDetectingPixelDefect() const override { return answer("isDetectingPixelDefect"); }
    bool isImageTriggerCapturing() const override { return answer("isImageTriggerCapturing"); }
    bool isImageTriggerDetecting() const override { return answer("isImageTriggerDetecting"); }

    int getDocCount() const override { return docs.size(); }
    int getSelectedDocCount() const override { return selectedDocs; }
    bool hasWaveformData() const override { return answer("hasWaveformData"); }
    bool isConflictPartition(int kind) const override { return answer("isConflictPartition", kind); }
    bool isPhaseAdjusting() const override { return answer("isPhaseAdjusting"); }

    int getRecStatus(const DocKeyList&) const override { return recordingState; }
    int getRecordingState() const override { return recordingState; }
    bool isRecording() const override { return answer("isRecording"); }
    bool isSaving() const override { return answer("isSaving"); }
    bool isBgSaving() const override { return answer("isBgSaving"); }
    bool isBgConverting() const override { return answer("isBgConverting"); }

    void copyToClipboard(int what) override { note("copyToClipboard", what); }

    void setRecordRate(const DocList&, unsigned int) override {}
    void searchCamera(const QString& address) override { note("searchCamera", address); }
    void discoverCameras() override { note("discoverCameras"); }
    void updateCameras() override { note("updateCameras"); }
    void setShutterSpeed(const DocList&, int) override {}
    void setResolution(const DocList&, int, int) override {}
    zeb::TriggerSettings getTriggerSettings() const override { return {}; }
    void setTriggerMode(const DocList&, int, int, int, int, float, int, int) override {}
    void setRandomTriggerPhase(const DocList&, bool) override {}
    void setReduceMode(const DocList&, bool) override {}
    void setLowLight(const DocList&, bool) override {}
    void setLowLightType(const DocList&, int) override {}
    void setPartition(PARTITIONNUMBER number, int) override { note("setPartition", number); }
    unsigned int getCurrentVariable() const override { return variable; }
    void setVariable(unsigned int channel) override { note("setVariable", channel); }
    void stopForPrefs() override { note("stopForPrefs"); }
    bool isLowlight() const override { return answer("isLowlight"); }
    bool existLowlight() const override { return answer("existLowlight"); }
    bool isAllLowlight(bool on) const override { return answer("isAllLowlight", on); }
    bool isLensCalibration() const override { return answer("isLensCalibration"); }
    bool isDirectSaving(int kind) const override { return answer("isDirectSaving", kind); }
    bool isAllWrenLockDevice() const override { return answer("isAllWrenLockDevice"); }

    double getRotation(DOCKEY) const override {
        failIf("getRotation");
        return rotation;
    }
    bool isHorizontalFlip(DOCKEY key) const override { return answer("isHorizontalFlip", key); }
    bool isVerticalFlip(DOCKEY key) const override { return answer("isVerticalFlip", key); }
    double getZoom(DOCKEY) const override { return 1.0; }
    bool isCycleView() const override { return answer("isCycleView"); }
    int countMdiWindow(bool visible, int kind) const override {
        return !visible ? -1 : kind == 2 ? imageWindows : windows;
    }

    void clear() override {}
    void beginMacro(const QString&) override {}
    void endMacro() override {}
    bool canUndo() const override { return answer("canUndo"); }
    bool canRedo() const override { return answer("canRedo"); }

private:
    void failIf(const char* operation) const {
        if (failing == QLatin1String(operation) || failing == QLatin1String("*")) throw std::runtime_error(operation);
    }
    bool answer(const char* operation, const QVariant& argument = {}) const {
        failIf(operation);
        return yes.contains(QString(QLatin1String(operation) % QLatin1Char(' ') % argument.toString()).trimmed());
    }
    void note(const char* operation, const QVariant& value = {}) const {
        Journal::note(QString(QLatin1String(operation) % QLatin1Char(' ') % value.toString()).trimmed());
        failIf(operation);
    }
    void store(const char* operation, const QString& key, const QVariant& value) {
        note(operation, QString(key % QLatin1Char('=') % value.toString()));
        prefs[key] = value;
    }
    void box(const char* kind, const QString& text) {
        note(kind, text);
        onBox();
    }
    void pause(const char* operation) {
        note(operation);
        livePaused = true;
    }
};

inline void FakeHost::attachBridge(QWebView* view, ZebPageBridge* bridge) {
    bridge->setView(view);
    QWebFrame* frame = view->page()->mainFrame();
    QObject::connect(frame, &QWebFrame::javaScriptWindowObjectCleared, bridge, [frame, bridge] {
        frame->addToJavaScriptWindowObject(bridge->bridgeName(), bridge);
        bridge->addPrefsJSObject();
    });
}
