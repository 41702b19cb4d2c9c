#pragma once

#include "CameraBank.h"
#include "CameraState.h"
#include "DocSelection.h"
#include "DocTurns.h"
#include "FileDocs.h"
#include "HostCalls.h"
#include "HostContext.h"
#include "ImageTools.h"
#include "SettingsDesk.h"
#include "SettingsSave.h"
#include "SimMedia.h"
#include "StatusFlags.h"
#include "ZebDocManager.h"

#include <functional>

/// Documents by key, the selection, connections, image tools.
class SimDocManager : public ZebDocManager {
public:
    explicit SimDocManager(const HostContext& host)
        : m_host(host),
          m_selection(host.cameras),
          m_turns(host),
          m_settings(host),
          m_settingsSave(host),
          m_media(host) {}

    /// As `getCurrentDockey`, for the host itself.
    DOCKEY currentKey() const { return m_selection.current(); }
    /// As `setSelectedDocs`, by the host itself.
    void selectOnly(const DocKeyList& keys) { m_selection.selectOnly(keys); }
    /// Documents handed out in this turn of the event loop.
    std::size_t handedOut() const { return m_turns.handedOut(); }
    /// The host is about to run an event loop: the documents of this turn are dead.
    void endTurn() { m_turns.endTurn(); }
    /// Hands out none of the present documents any more, and forgets the current one. Those that somebody works with
    /// still tell their keys.
    void forgetDocs();
    /// The temporary save list, of those cameras that are there.
    void setTemporarySaveDocs(const DocKeyList& keys) { m_temporarySave = keys; }
    FileDocs& files() { return m_files; }
    ImageTools& tools() { return m_tools; }
    /// Whether an image tool is the active one or a quick tool that is on.
    bool isToolActive(const QString& tool) const { return m_tools.isActive(tool); }

    DOC_Interface* getDoc(DOCKEY key, int /*mode*/) override { return getDocAny(key); }
    DOC_Interface* getDocAny(DOCKEY key) override;
    DOC_Interface* getCurrentDoc() override {
        m_host.calls.ask(OPERATION("getCurrentDoc"));
        return getDocAny(currentKey());
    }
    bool isCurrentDoc(DOCKEY key) const override {
        m_host.calls.ask(OPERATION("isCurrentDoc"));
        return m_selection.isCurrent(key);
    }
    DOCKEY getCurrentDockey(int /*mode*/) const override {
        m_host.calls.ask(OPERATION("getCurrentDockey"));
        return currentKey();
    }
    /// Of a selected camera only.
    void setCurrentDoc(DOCKEY key, int mode) override {
        m_host.calls.change(OPERATION("ZebDocManager::setCurrentDoc"), {key, mode});
        m_selection.setCurrent(key);
    }
    DocKeyList getDocKeys(int /*mode*/ = 0) const override { return ask(OPERATION("getDocKeys")).keys(); }
    DocKeyList getConnectedDocKeys(int /*mode*/ = 0) const override {
        return ask(OPERATION("getConnectedDocKeys")).keysOf(&CameraState::connected);
    }
    DocKeyList getLiveDocKeys(int /*mode*/, int /*order*/) const override {
        return ask(OPERATION("getLiveDocKeys")).keys();
    }
    DocKeyList getSelectedDocKeys(int /*mode*/) const override {
        return ask(OPERATION("getSelectedDocKeys")).keysOf(&CameraState::selected);
    }
    DocList getCameraDocs() override;
    /// Those that are connected and can run on a common signal.
    DocList getSyncableDocs(int mode) override;
    int getDocCount() const override {
        return isOn(OPERATION("getDocCount"), StatusFlags::IsNoneDocument) ? 0 : int(m_host.cameras.all().size());
    }
    int getSelectedDocCount() const override {
        return ask(OPERATION("getSelectedDocCount")).keysOf(&CameraState::selected).size();
    }

    void selectDoc(DOCKEY key) override;
    void deselectDoc(DOCKEY key) override;
    void setSelectedDocs(const DocKeyList& keys, int mode) override;
    void selectAllDocs(QObject* /*sender*/) override {
        m_host.calls.change(OPERATION("ZebDocManager::selectAllDocs"));
        m_selection.selectAll();
    }
    /// The user is told why some did not connect or disconnect.
    void connectDocs(const DocKeyList& keys) override;
    void disconnectDocs(const DocKeyList& keys) override;
    void disconnectDoc(DOCKEY key, int mode) override;
    /// Throws while a connected camera is armed or records. A notice names those that hold images nobody has saved.
    void deleteAllDocs(int kind, int mode) override;
    void editDoc(DOCKEY key) override;
    bool sharesDeviceWithLockedHead(DOC_Interface* doc, bool shutter, bool resolution) override;

    DocKeyList getTemporarySaveDocKeys() const override;

    unsigned int getSdDriveMask() const override {
        m_host.calls.ask(OPERATION("getSdDriveMask"));
        return m_media.sdDriveMask();
    }
    bool getOpenSdDrive(int& drive) const override {
        m_host.calls.ask(OPERATION("getOpenSdDrive"));
        return m_media.getOpenSdDrive(drive);
    }
    void prepareDrive(int kind) override { m_host.calls.change(OPERATION("ZebDocManager::prepareDrive"), {kind}); }
    void openSdDrive(int drive) override { m_media.openSdDrive(drive); }
    void closeSdDrive() override {
        m_host.calls.change(OPERATION("ZebDocManager::closeSdDrive"));
        m_media.close(RigMedium::SdCard);
    }
    SimMedia& media() override { return m_media; }

    /// There is none: cameras bring images only.
    bool hasWaveformData() const override {
        m_host.calls.ask(OPERATION("hasWaveformData"));
        return false;
    }
    bool isWaveDataAcquisition() const override {
        return isOn(OPERATION("isWaveDataAcquisition"), StatusFlags::IsWaveDataAcquisition);
    }
    bool isConflictPartition(int /*mode*/) const override {
        return isOn(OPERATION("isConflictPartition"), StatusFlags::IsConflictPartition);
    }
    bool isPhaseAdjusting() const override {
        return isOn(OPERATION("isPhaseAdjusting"), StatusFlags::IsPhaseAdjusting);
    }
    bool isRecordAreaEnabled() const override;

    QMutex* getDocMutex() override { return &m_mutex; }
    void beginDocEdit() override { m_host.calls.change(OPERATION("ZebDocManager::beginDocEdit")); }
    void beginDocEditNotify() override { m_host.calls.change(OPERATION("ZebDocManager::beginDocEditNotify")); }
    void endDocEdit() override { m_host.calls.change(OPERATION("ZebDocManager::endDocEdit")); }
    void commitDocEdit() override { m_host.calls.change(OPERATION("ZebDocManager::commitDocEdit")); }
    void loadSettingsFile(const QString& path, int mode, int reserved) override;
    void saveSettingsFile(const QString& path, int mode) override;
    void refreshDocList(int mode) override;

    void setQuickTool(const QString& tool, bool on) override {
        m_host.calls.change(OPERATION("ZebDocManager::setQuickTool"), {tool, on});
        m_tools.setQuick(tool, on);
    }
    void setActiveQuickTool(const QString& tool) override {
        m_host.calls.change(OPERATION("ZebDocManager::setActiveQuickTool"), {tool});
        m_tools.setActive(tool);
    }
    void toolSelect(const QString& tool, bool on) override {
        m_host.calls.change(OPERATION("ZebDocManager::toolSelect"), {tool, on});
        m_tools.choose(tool, {currentKey()}, on);
    }
    void toolSelectAll(const QString& tool, bool all, bool on) override {
        m_host.calls.change(OPERATION("ZebDocManager::toolSelectAll"), {tool, all, on});
        m_tools.choose(tool, all ? m_host.cameras.keys() : DocKeyList{currentKey()}, on);
    }
    void toolBegin(int mode, const QString& tool) override {
        m_host.calls.change(OPERATION("ZebDocManager::toolBegin"), {mode, tool});
    }
    void toolEnd(const QString& tool) override { m_host.calls.change(OPERATION("ZebDocManager::toolEnd"), {tool}); }
    void toolApply(const QString& tool) override { m_host.calls.change(OPERATION("ZebDocManager::toolApply"), {tool}); }

private:
    const CameraBank& ask(HostOperation operation) const {
        m_host.calls.ask(operation);
        return m_host.cameras;
    }
    bool isOn(HostOperation operation, StatusFlags::Flag flag) const {
        m_host.calls.ask(operation);
        return m_host.flags.isOn(flag);
    }
    void onDevices(const DocKeyList& keys, const std::function<void(Camera&)>& work);

    const HostContext& m_host;
    QMutex m_mutex;
    ImageTools m_tools;
    DocKeyList m_temporarySave;
    DocSelection m_selection;
    DocTurns m_turns;
    SettingsDesk m_settings;
    SettingsSave m_settingsSave;
    FileDocs m_files{m_host};
    SimMedia m_media;
};
