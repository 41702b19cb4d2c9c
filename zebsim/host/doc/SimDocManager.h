#pragma once

#include "DocContext.h"
#include "DocTurn.h"
#include "ImageTools.h"
#include "ZebDocManager.h"

#include <QPointer>

#include <functional>
#include <map>

class Camera;
class CameraBank;
class Notices;
class SimRecorder;
class StatusFlags;
class SyncSignal;
class Translator;
class UnsavedGuard;
class UpdateCycle;

/// Documents by key, the selection, connections, image tools.
class SimDocManager : public ZebDocManager {
public:
    /// `tellFailure` shows why cameras did not connect or disconnect.
    SimDocManager(const HostCalls& calls, CameraBank& cameras, const Preferences& prefs, const SimAppStatus& appStatus,
                  const StatusFlags& flags, const Translator& translator, const SyncSignal& sync,
                  const SimRecorder& recorder, UpdateCycle& updates, Notices& notices, const UnsavedGuard& unsaved,
                  std::function<void(const std::exception&)> tellFailure);

    /// As `getCurrentDockey`, for the host itself.
    DOCKEY currentKey() const;
    /// What `editDoc` opens; nothing at first. It is called for a camera that is there and runs until it is closed.
    void setEditor(std::function<void(DOCKEY)> editor) { m_editor = std::move(editor); }
    /// As `setSelectedDocs`, by the host itself.
    void selectOnly(const DocKeyList& keys);
    /// Documents handed out in this turn of the event loop.
    std::size_t handedOut() const;
    /// The host is about to run an event loop: the documents of this turn are dead.
    void endTurn();
    /// Hands out none of the present documents any more, and forgets the current one. Those that somebody works with
    /// still tell their keys.
    void forgetDocs();
    /// Whether an image tool is the active one or a quick tool that is on.
    bool isToolActive(const QString& tool) const { return m_tools.isActive(tool); }

    DOC_Interface* getDoc(DOCKEY key, int mode) override;
    DOC_Interface* getDocAny(DOCKEY key) override;
    /// The first that was selected and still is.
    DOC_Interface* getCurrentDoc() override;
    bool isCurrentDoc(DOCKEY key) const override;
    DOCKEY getCurrentDockey(int mode) const override;
    /// Of a selected camera only.
    void setCurrentDoc(DOCKEY key, int mode) override;
    DocKeyList getDocKeys(int mode = 0) const override;
    DocKeyList getConnectedDocKeys(int mode = 0) const override;
    DocKeyList getLiveDocKeys(int mode, int order) const override;
    DocList getCameraDocs() override;
    /// Those that are connected and can run on a common signal.
    DocList getSyncableDocs(int mode) override;
    int getDocCount() const override;
    int getSelectedDocCount() const override;
    void selectDoc(DOCKEY key) override;
    void deselectDoc(DOCKEY key) override;
    DocKeyList getSelectedDocKeys(int mode) const override;
    void setSelectedDocs(const DocKeyList& keys, int mode) override;
    void selectAllDocs(QObject* sender) override;
    void connectDocs(const DocKeyList& keys) override;
    void disconnectDocs(const DocKeyList& keys) override;
    /// Throws while a connected camera is armed or records. A notice names those that hold images nobody has saved.
    void deleteAllDocs(int kind, int mode) override;
    void editDoc(DOCKEY key) override;
    bool sharesDeviceWithLockedHead(DOC_Interface* doc, bool shutter, bool resolution) override;
    /// There is none: cameras bring images only.
    bool hasWaveformData() const override;
    bool isWaveDataAcquisition() const override;
    bool isConflictPartition(int mode) const override;
    bool isPhaseAdjusting() const override;
    bool isRecordAreaEnabled() const override;
    QMutex* getDocMutex() override { return &m_mutex; }
    void beginDocEdit() override;
    void beginDocEditNotify() override;
    void endDocEdit() override;
    void commitDocEdit() override;
    void refreshDocList(int mode) override;
    void setQuickTool(const QString& tool, bool on) override;
    void setActiveQuickTool(const QString& tool) override;
    void toolSelect(const QString& tool, bool on) override;
    void toolSelectAll(const QString& tool, bool all, bool on) override;
    void toolBegin(int mode, const QString& tool) override;
    void toolEnd(const QString& tool) override;
    void toolApply(const QString& tool) override;

private:
    DocTurn& turn();
    void forEachKey(const DocKeyList& keys, const std::function<void(Camera&)>& work);

    const HostCalls& m_calls;
    CameraBank& m_cameras;
    const StatusFlags& m_flags;
    UpdateCycle& m_updates;
    const UnsavedGuard& m_unsaved;
    const std::function<void(const std::exception&)> m_tellFailure;
    QMutex m_mutex;
    ImageTools m_tools;
    const DocContext m_context;
    std::function<void(DOCKEY)> m_editor;
    QObject m_turnOwner;
    /// By the level of their event loop.
    std::map<int, QPointer<DocTurn>> m_turns;
    /// May have lost its selection meanwhile.
    mutable DOCKEY m_current = zeb::NoDocKey;
};
