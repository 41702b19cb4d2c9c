#pragma once

#include "CameraModel.h"
#include "CameraState.h"
#include "Operation.h"
#include "Recording.h"

#include <QHash>

#include <functional>
#include <memory>
#include <mutex>
#include <type_traits>
#include <utility>

class CameraDevice;
struct SyncSource;

/// A camera, or one head of a device with several: the one truth of its settings. Any thread; who looks while a command
/// is carried out may see a part of it.
class Camera {
public:
    Camera(DOCKEY key, CameraDevice& device, CameraState state);
    Camera(const Camera&) = delete;
    Camera& operator=(const Camera&) = delete;

    DOCKEY key() const { return m_key; }
    CameraDevice& device() const { return m_device; }
    const CameraModel& model() const;
    QString name() const { return get(&CameraState::name); }
    /// That of its device; of a device with several heads with the number of its own, as "192.168.0.13-2".
    QString address() const;
    /// From 1 on.
    int headNumber() const;
    /// The camera has vanished: it does nothing more, and the host has no document for it.
    bool isGone() const;
    /// It stands for a recording in files, and takes no commands.
    bool isFile() const { return !get(&CameraState::sourceFile).isEmpty(); }

    /// A `zeb::RecordStatus`.
    int recordState() const { return get(&CameraState::recordState); }
    /// It waits for a trigger, or for CTS before that.
    bool isArmed() const;
    /// It is armed or records.
    bool isUnderWay() const;

    /// One member of the state, as `get(&CameraState::rate)`, or of the model.
    template <typename T, typename Owner>
    T get(T Owner::*member) const;
    template <typename T>
    T get(T CameraModel::*member) const {
        return model().*member;
    }
    template <typename T, typename Owner>
    void set(T Owner::*member, std::common_type_t<T> value);
    CameraState state() const;
    /// Nothing when nothing is recorded.
    std::optional<Recording> recording() const;
    /// Of another partition than the present one too.
    std::optional<Recording> recordingOf(PARTITIONNUMBER partition) const;
    /// Of all partitions, in their order.
    std::vector<Recording> recordings() const;
    /// The selected range of `recording` stands in files, if the camera still has that recording.
    void noteSaved(const Recording& recording);
    /// The list of custom information: where recorded images are shown that of the recording, if there is one, else
    /// that which goes with the next.
    CustomInfo customInfo(bool recorded) const;
    /// `edit` answers why the list does not take it, or an empty text. Throws `CameraError`.
    void editCustomInfo(bool recorded, const std::function<QString(CustomInfo&)>& edit);
    /// Changes the state behind the camera's back: no latency, no limits, no other heads. A change of the partition
    /// comes before that of what is in it. Throws `StateError`.
    void change(const QVariantMap& members);

    /// Every question of a document to its camera, and what it does there that takes no time, begins with one of these;
    /// they take the time that a planted fault says. They throw `CameraError`, the second also when the camera is not
    /// connected. A camera that is gone answers what was last known of it.
    void ask(CameraOperation operation) const;
    void askConnected(CameraOperation operation) const;

    /// Commands. Each takes the camera's latency, or throws `CameraError`. A camera that is gone does nothing more.
    ///
    /// Connects the device with all its heads, and disconnects it: for good, or for the preset that it was marked for.
    void connect();
    void disconnect();
    void disconnectForPreset();
    /// The rate that the model makes of `rate`, on all heads of the device.
    void setRecordRate(unsigned int rate);
    /// n of 1/n second; exposures longer than a frame lasts become the longest that fits.
    void setShutterSpeed(int speed);
    void setResolution(const QSize& resolution);
    /// With `triggerFrame` so many frames of the memory are kept for what comes from a manual trigger on, whatever the
    /// share in `settings`: on this head, and on those that share it.
    void setTriggerMode(int mode, const zeb::TriggerSettings& settings, std::optional<int> triggerFrame = std::nullopt);
    void setRandomTriggerPhase(bool counted);
    void setReduceMode(bool on);
    void synchronise(const SyncSource& source);
    /// The same, by the two calls that the host has for it.
    void setLowLight(bool on) { switchLowLight(OPERATION("setLowLight"), on); }
    void setLowLightMode(bool on) { switchLowLight(OPERATION("setLowLightMode"), on); }
    void setLowLightType(int type);
    void setResolutionLock(bool lock);
    void setShutterSpeedLock(bool lock);
    /// `index` counts the ports from 1, in the order of their numbers.
    void setPortSignal(int index, int signal);
    void setName(const QString& name);
    void setComment(const QString& comment);
    /// Presets of the device, of all its heads. Throw also for a number that it does not have, and while one of its
    /// heads is ready or records; a preset that nobody has saved holds what the model starts with. For a load some
    /// models start anew: they go when they are disconnected next.
    zeb::CameraPresetInfo presetInfo() const;
    void loadPreset(int number);
    void savePreset(int number);
    /// Whoever marks it expects the device to go for the preset that is loaded next, and wants it connected again.
    void markRebooting();
    /// The user switches the device off and on again. It is away for as long as it takes to start, and for good when
    /// that fails. No command: it takes no time.
    void reboot();
    /// An image plug-in works on its images or not, and has these numbers. They take no time.
    void setPluginEffective(const QString& name, bool effective);
    void setPluginValues(const QString& name, const QVariantMap& values);
    /// Gives it settings, as plain data, that have no command of their own, all at once. Throws also for one that it
    /// does not take, and none is changed then.
    void loadSettings(const QVariantMap& settings);
    /// What it tells when it is asked for its settings; `operation` is what for. Throws also when it is gone.
    CameraState readSettings(CameraOperation operation);
    void eraseRecordedData();
    /// Throws also for a partition or channel that the camera does not have.
    void setPartition(PARTITIONNUMBER partition);
    void setVariable(unsigned int channel);
    /// The camera gets ready for a trigger, by way of CTS where its model has that.
    void arm();
    /// It records: what was in the partition is lost.
    void trigger();
    void stop();
    /// Back to live, whatever it was about.
    void cancel();
    /// A camera that waits for a trigger goes back to live.
    void disarm();

    /// What the camera does by itself: it goes into a `zeb::RecordStatus`, and keeps what it has recorded in a
    /// partition, which need not be the present one any more.
    void enterRecordState(int recordState);
    void keep(PARTITIONNUMBER partition, const std::optional<Recording>& recording);

private:
    [[noreturn]] void refuse(const QString& reason) const;
    void require(int function, const char* mode) const;
    void requirePreset(int number) const;
    void disconnectHeads();
    void beginRestart();
    void fitShutter();
    void switchLowLight(CameraOperation operation, bool on);
    /// Whether the camera is there to do it.
    bool command(CameraOperation operation);
    bool commandConnected(CameraOperation operation);
    void requireConnected() const;
    void requireStarted() const;
    /// The device's mutex is held.
    std::optional<Recording> recordingIn(PARTITIONNUMBER partition) const;
    void changePartition(PARTITIONNUMBER partition);
    PartitionMemory& memoryOf(PARTITIONNUMBER partition);
    template <typename T>
    void onAllHeads(T CameraState::*member, T value);

    const DOCKEY m_key;
    CameraDevice& m_device;
    CameraState m_state;
    /// What the end of low light mode has made of a shutter speed, for its return.
    std::pair<int, int> m_shortened{0, 0};
    /// What the partitions hold that are not the present one.
    QHash<PARTITIONNUMBER, PartitionMemory> m_otherPartitions;
};

#include "CameraDevice.h"

template <typename T, typename Owner>
T Camera::get(T Owner::*member) const {
    const std::lock_guard lock(m_device.mutex());
    return m_state.*member;
}

template <typename T, typename Owner>
void Camera::set(T Owner::*member, std::common_type_t<T> value) {
    const std::lock_guard lock(m_device.mutex());
    m_state.*member = std::move(value);
}
