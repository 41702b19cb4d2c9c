#pragma once

#include "Operation.h"
#include "ZebCameraOps.h"

#include <functional>

class Camera;
struct HostContext;
struct SyncSource;

/// Operations on many cameras: each one is tried, and the failures come as one exception.
class SimCameraOps : public ZebCameraOps {
public:
    explicit SimCameraOps(const HostContext& host) : m_host(host) {}

    void searchCamera(const QString& address) override;
    void discoverCameras() override;
    void updateCameras() override;
    void setRecordRate(const DocList& docs, unsigned int rate) override;
    void setShutterSpeed(const DocList& docs, int speed) override;
    void setResolution(const DocList& docs, int width, int height) override;
    zeb::TriggerSettings getTriggerSettings() const override;
    void setTriggerMode(const DocList& docs, int kind, int mode, int reserved1, int reserved2,
                        float manualBeforePercent, int randomFrames, int randomTimes) override;
    void setRandomTriggerPhase(const DocList& docs, bool counted) override;
    void setReduceMode(const DocList& docs, bool on) override;
    void setLowLight(const DocList& docs, bool on) override;
    void setLowLightType(const DocList& docs, int type) override;
    /// Cameras that are there, connected and at rest, while nothing is saved.
    bool canSync(const DocList& docs) override;
    /// Any thread. One camera after the other.
    void syncCameras(const DocList& docs, DOC_Interface* master, int lport, bool external, bool generator, int input,
                     int frequency, int polarity) override;
    void setPartition(PARTITIONNUMBER number, int mode) override;
    unsigned int getCurrentVariable() const override;
    void setVariable(unsigned int channel) override;
    void stopForPrefs() override;
    bool isLowlight() const override;
    bool hasLowLightCamera() const override;
    bool existLowlight() const override;
    bool isAllLowlight(bool on) const override;
    bool isLensCalibration() const override;
    bool isDirectSaving(int mode) const override;
    bool isAllWrenLockDevice() const override;

private:
    void search(const QString& network);
    static DocKeyList keysOf(const DocList& docs);
    /// A command to every camera of the list, in the journal as one call with its keys and `args`.
    void command(HostOperation operation, const DocList& docs, const QVariantList& args,
                 const std::function<void(Camera&)>& work);

    const HostContext& m_host;
};
