#pragma once

#include "DOC_Interface.h"
#include "DOC_Network.h"
#include "DocTopic.h"
#include "SimActivity.h"
#include "SimControl.h"
#include "SimFrames.h"
#include "SimHead.h"
#include "SimImage.h"
#include "SimLock.h"
#include "SimStorage.h"

#include <memory>

/// A camera's document: a view on the `Camera`, which holds all that there is to know. The camera lives as long, for
/// the rig may be replaced while other threads wait for its answers.
class SimDocument : public DocTopic<DOC_Interface> {
public:
    SimDocument(std::shared_ptr<Camera> camera, const HostContext& host);

    SimActivity& activity() override { return m_activity; }
    SimLock& lock() override { return m_lock; }
    SimFrames& frames() override { return m_frames; }
    SimImage& image() override { return m_image; }
    SimControl& control() override { return m_control; }
    SimHead& head() override { return m_head; }
    SimStorage& storage() override { return m_storage; }
    DOC_Network& network() override { return m_network; }

    /// Also when the rig was replaced, and on any thread.
    DOCKEY getKey() const override { return m_key; }
    bool isConnected() const override { return ask(OPERATION("isConnected"), &CameraState::connected); }
    bool isSelected() const override { return ask(OPERATION("isSelected"), &CameraState::selected); }
    bool isMobileSelected() const override { return ask(OPERATION("isMobileSelected"), &CameraState::mobile); }
    bool isSdSelected() const override { return ask(OPERATION("isSdSelected"), &CameraState::sd); }
    bool isQuikDriveSelected() const override { return ask(OPERATION("isQuikDriveSelected"), &CameraState::quikDrive); }
    bool isCFastSelected() const override { return ask(OPERATION("isCFastSelected"), &CameraState::cfast); }
    /// The document of the master head; null for the master and for a camera of one head.
    DOC_Interface* getParentDoc() const override;
    void markRebooting(int mode, DOCKEY key) override {
        note("DOC_Interface::markRebooting", {mode, key}).markRebooting();
    }
    QString getDisplayName() const override { return ask(OPERATION("getDisplayName"), &CameraState::name); }
    DocList getHeadDocs(int mode) override;
    int getHeadCount() const override { return int(m_camera.device().heads().size()); }
    QString getSourceFilePath() const override { return m_camera.get(&CameraState::sourceFile); }
    QString getOriginalName() const override {
        return m_camera.isFile() ? m_camera.get(&CameraState::originalName) : m_camera.name();
    }
    bool isMemoryData() const override;
    QList<PARTITIONNUMBER> getPartitionList() const override;
    /// "Partition 2", in the user's language, for one without a name.
    QString getPartitionName(PARTITIONNUMBER partition) const override;
    QStringList getAlerts() const override { return askConnected(OPERATION("getAlerts"), &CameraState::alerts); }
    QString formatShutterSpeed(int value, int head) const override;

private:
    const std::shared_ptr<Camera> m_held;
    const DOCKEY m_key;
    SimActivity m_activity;
    SimLock m_lock;
    SimFrames m_frames;
    SimImage m_image;
    SimControl m_control;
    SimHead m_head;
    SimStorage m_storage;
    DOC_Network m_network;
};
