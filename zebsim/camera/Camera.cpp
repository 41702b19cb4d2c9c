#include "Camera.h"

#include "CameraError.h"
#include "Clock.h"
#include "FaultPlan.h"
#include "RecordSettings.h"
#include "TextKey.h"

#include <QUuid>

#include <algorithm>
#include <atomic>

namespace {

/// Status of a camera that failed; it has no name.
constexpr int FailedStatus = 128;

int statusOf(int recordState, bool recordsBefore) {
    switch (recordState) {
        case zeb::RecordLive:
            return zeb::CameraLive;
        case zeb::RecordCtsReady:
            return zeb::CameraRecReady;
        case zeb::RecordReady:
            return recordsBefore ? zeb::CameraEndlessReady : zeb::CameraTriggerReady;
        case zeb::RecordRecording:
            return zeb::CameraRecording;
        default:
            return FailedStatus;
    }
}

}  // namespace

Camera::Camera(DOCKEY key, CameraDevice& device, CameraState state)
    : m_key(key), m_device(device), m_state(std::move(state)) {}

const CameraModel& Camera::model() const {
    return m_device.model();
}

int Camera::headNumber() const {
    const auto& heads = m_device.heads();
    const auto self = std::find_if(heads.begin(), heads.end(), [this](const auto& head) { return head.get() == this; });
    return int(self - heads.begin()) + 1;
}

QString Camera::address() const {
    const QString& address = m_device.address();
    return m_device.heads().size() == 1 ? address : QString(address % QLatin1Char('-') % QString::number(headNumber()));
}

bool Camera::isGone() const {
    return m_device.faults().isGone(m_key);
}

bool Camera::isArmed() const {
    const int state = recordState();
    return state == zeb::RecordCtsReady || state == zeb::RecordReady;
}

bool Camera::isUnderWay() const {
    const int state = recordState();
    return state != zeb::RecordLive && state != zeb::RecordError;
}

CameraState Camera::state() const {
    const std::lock_guard lock(m_device.mutex());
    return m_state;
}

std::optional<Recording> Camera::recording() const {
    return Recording::of(state(), model());
}

std::optional<Recording> Camera::recordingOf(PARTITIONNUMBER partition) const {
    const std::lock_guard lock(m_device.mutex());
    return recordingIn(partition);
}

std::vector<Recording> Camera::recordings() const {
    const std::lock_guard lock(m_device.mutex());
    QList<PARTITIONNUMBER> partitions = m_otherPartitions.keys();
    partitions.append(m_state.partition);
    std::sort(partitions.begin(), partitions.end());
    std::vector<Recording> recordings;
    for (const PARTITIONNUMBER partition : partitions) {
        if (const auto recording = recordingIn(partition)) {
            recordings.push_back(*recording);
        }
    }
    return recordings;
}

std::optional<Recording> Camera::recordingIn(PARTITIONNUMBER partition) const {
    CameraState asked = m_state;
    if (partition != asked.partition) {
        static_cast<PartitionMemory&>(asked) = m_otherPartitions.value(partition);
        asked.partition = partition;
    }
    return Recording::of(asked, model());
}

void Camera::noteSaved(const Recording& recording) {
    const std::lock_guard lock(m_device.mutex());
    PartitionMemory& memory = memoryOf(recording.partition);
    if (memory.serial == recording.serial) {
        memory.savedRanges.append({recording.selectedFirst, recording.selectedLast});
    }
}

CustomInfo Camera::customInfo(bool recorded) const {
    const std::lock_guard lock(m_device.mutex());
    return recorded && m_state.recorded ? m_state.recordedCustomInfo : m_state.customInfo;
}

void Camera::editCustomInfo(bool recorded, const std::function<QString(CustomInfo&)>& edit) {
    QString reason;
    {
        const std::lock_guard lock(m_device.mutex());
        reason = edit(recorded && m_state.recorded ? m_state.recordedCustomInfo : m_state.customInfo);
    }
    if (!reason.isEmpty()) {
        refuse(reason);
    }
}

void Camera::change(const QVariantMap& members) {
    const std::lock_guard lock(m_device.mutex());
    CameraState checked = m_state;
    checked.apply(members);
    changePartition(checked.partition);
    m_state.apply(members);
}

void Camera::ask(CameraOperation operation) const {
    const QString reason = m_device.faults().suffer(m_key, operation.name(), m_device.clock());
    if (!reason.isEmpty()) {
        refuse(reason);
    }
}

void Camera::askConnected(CameraOperation operation) const {
    requireConnected();
    ask(operation);
}

void Camera::requireConnected() const {
    requireStarted();
    if (!get(&CameraState::connected)) {
        refuse(TextKey("the camera is not connected"));
    }
}

void Camera::requireStarted() const {
    if (m_device.restart().isAway() && !isGone()) {
        refuse(m_device.restart().isLost() ? TextKey("the camera has not come back after its restart")
                                           : TextKey("the camera is starting anew"));
    }
}

bool Camera::command(CameraOperation operation) {
    ask(operation);
    if (isFile()) {
        refuse(TextKey("it is a recording in files, and no camera"));
    }
    requireStarted();
    m_device.clock().wait(m_device.latency());
    return !isGone();
}

bool Camera::commandConnected(CameraOperation operation) {
    requireConnected();
    const bool there = command(operation);
    if (there && get(&CameraState::lowLight) && model().lowLightRefuses.contains(QLatin1String(operation.name()))) {
        refuse(QStringLiteral("this can't be changed in low light mode"));
    }
    return there;
}

void Camera::refuse(const QString& reason) const {
    throw CameraError(name(), reason);
}

void Camera::changePartition(PARTITIONNUMBER partition) {
    if (partition != m_state.partition) {
        m_otherPartitions.insert(m_state.partition, m_state);
        static_cast<PartitionMemory&>(m_state) = m_otherPartitions.take(partition);
        m_state.partition = partition;
    }
}

PartitionMemory& Camera::memoryOf(PARTITIONNUMBER partition) {
    return partition == m_state.partition ? m_state : m_otherPartitions[partition];
}

void Camera::enterRecordState(int recordState) {
    const bool recordsBefore = RecordSettings::of(state(), model()).framesBefore() > 0;
    const std::lock_guard lock(m_device.mutex());
    m_state.recordState = recordState;
    m_state.status = statusOf(recordState, recordsBefore);
}

void Camera::keep(PARTITIONNUMBER partition, const std::optional<Recording>& recording) {
    static std::atomic<quint64> lastSerial{0};
    PartitionMemory kept;
    if (recording) {
        kept.recorded = true;
        kept.serial = ++lastSerial;
        kept.shoot = QUuid::createUuid().toString(QUuid::WithoutBraces);
        kept.recordedRate = recording->rate;
        kept.recordedShutter = recording->shutter;
        kept.recordedResolution = recording->resolution;
        kept.recordedRange = {recording->first, recording->last};
        kept.recordedTrigger = recording->trigger;
        kept.selectedRange = {recording->selectedFirst, recording->selectedLast};
        kept.recordedCustomInfo = recording->customInfo;
    }
    const std::lock_guard lock(m_device.mutex());
    memoryOf(partition) = kept;
}

void Camera::setPluginEffective(const QString& name, bool effective) {
    const std::lock_guard lock(m_device.mutex());
    QStringList& names = m_state.effectivePlugins;
    names.removeAll(name);
    if (effective) {
        names.append(name);
    }
    // Their order means nothing.
    names.sort();
}

void Camera::setPluginValues(const QString& name, const QVariantMap& values) {
    const std::lock_guard lock(m_device.mutex());
    m_state.pluginValues.insert(name, values);
}
