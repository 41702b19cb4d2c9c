#pragma once

#include "FakeDoc.h"
#include "Journal.h"
#include "ZebAppStatus.h"
#include "ZebDocManager.h"
#include "ZebHost.h"
#include "ZebLiveLoop.h"
#include "ZebPageBridge.h"
#include "ZebPlayer.h"

#include <QHash>
#include <QPointer>
#include <QWebFrame>
#include <QWebPage>
#include <QWebView>
#include <QWidget>

#include <functional>
#include <stdexcept>

/// A host that answers from its public members and notes in the journal what it was asked to do.
class FakeHost : public ZebHost, public ZebAppStatus, public ZebDocManager, public ZebLiveLoop, public ZebPlayer {
public:
    int mode = zeb::LiveMode;
    QHash<QString, QVariant> prefs;
    bool viewerRunning = false;
    bool closing = false;
    bool otherPluginOpen = false;
    bool wrenRunning = false;
    bool userAgrees = true;
    bool livePaused = false;
    QWidget* mainWindow = nullptr;
    QWidget* mdiWidget = nullptr;
    QHash<QString, PLG_Interface*> plugins;
    QHash<DOCKEY, FakeDoc*> docs;
    QMutex docMutex;
    /// Runs in the place of a message box.
    std::function<void()> onBox = [] {};
    /// Name of an operation that throws, "*" for all.
    QString failing;

    ZebAppStatus& appStatus() override { return *this; }
    ZebDocManager& docManager() override { return *this; }
    ZebLiveLoop& liveLoop() override { return *this; }
    ZebPlayer& player() override { return *this; }
    ZebRecorder& recorder() override { throw std::logic_error("no recorder"); }
    ZebCameraOps& cameraOps() override { throw std::logic_error("no camera operations"); }
    ZebSaver& saver() override { throw std::logic_error("no saver"); }
    ZebViewOps& viewOps() override { throw std::logic_error("no view"); }
    ZebUndo& undo() override { throw std::logic_error("no undo"); }

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

    QWidget* getMainWindow() const override { return mainWindow; }
    QWidget* getMdiWidget() const override { return mdiWidget; }
    void attachBridge(QWebView* view, ZebPageBridge* bridge) override;

    void updateUI(unsigned int mask, bool) override { note("updateUI", mask); }
    void deterUpdateUI(bool deter) override { note("deterUpdateUI", deter); }
    bool isViewerRunning() const override { return viewerRunning; }
    void suspendViewer() override { note("suspendViewer"); }
    void resumeViewer() override { note("resumeViewer"); }

    bool isApplicationClosing() const override { return closing; }
    bool isWindowStateSaveSuppressed() const override { return false; }
    bool isOtherPluginOpen() const override { return otherPluginOpen; }
    bool isSelectionKept() const override { return false; }
    bool getTriggerTesting() const override { return false; }
    void setTextBoxFocusState(bool focused) override { note("setTextBoxFocusState", focused); }
    bool isToolActive(const QString&) const override { return false; }
    bool isPluginAvailable(const QString&) const override { return false; }
    bool isPluginOkPattern(const QString&) const override { return false; }
    bool isCapable(const QString&, DOC_Interface*, int) const override { return false; }

    PLG_Interface* getPlugin(const QString& name) const override { return plugins.value(name); }
    PLG_Interface* getCurrentPlugin() const override { return nullptr; }
    bool isPluginEnabledFor(const QString&, DOC_Interface*) const override { return false; }
    void closePlugin(const QString& name) override { note("closePlugin", name); }
    void closePanel() override {}
    void closeAuxiliaryPanel() override {}
    void setWrenRunning(bool running) override { wrenRunning = running; }
    bool isWrenRunning() const override { return wrenRunning; }
    void notifyPluginShown(PLG_Interface*) override { note("notifyPluginShown"); }
    void notifyPluginClosed(PLG_Interface*) override { note("notifyPluginClosed"); }
    void enterLiveMode() override {}
    void enterMemoryMode() override {}

    DOC_Interface* getDoc(DOCKEY key, int) override { return docs.value(key); }
    DOC_Interface* getDocAny(DOCKEY key) override { return docs.value(key); }
    DOC_Interface* getCurrentDoc() override { return nullptr; }
    bool isCurrentDoc(DOCKEY) const override { return false; }
    DocKeyList getDocKeys() const override { return connectedKeys; }
    DocKeyList getConnectedDocKeys(int) const override { return connectedKeys; }
    DocKeyList getLiveDocKeys(int, int) const override { return connectedKeys; }
    void selectDoc(DOCKEY) override {}
    void deselectDoc(DOCKEY) override {}
    void connectDocs(const DocKeyList&) override {}
    void disconnectDocs(const DocKeyList&) override {}
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
    void setActiveQuickTool(const QString&) override {}
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

    /// Keys that count as connected; a key without a document is a camera that is gone.
    DocKeyList connectedKeys;

private:
    void failIf(const char* operation) const {
        if (failing == QLatin1String(operation) || failing == QLatin1String("*")) throw std::runtime_error(operation);
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
