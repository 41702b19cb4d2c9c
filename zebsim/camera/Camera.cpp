#include "Camera.h"

#include "CameraError.h"
#include "Clock.h"
#include "FaultPlan.h"
#include "RecordSettings.h"
#include "SyncSource.h"
#include "TextKey.h"

#include <algorithm>
#include <atomic>
#include <cmath>

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

bool Camera::isUnderWay() const {
    const int recordState = get(&CameraState::recordState);
    return recordState != zeb::RecordLive && recordState != zeb::RecordError;
}

CameraState Camera::state() const {
    const std::lock_guard lock(m_device.mutex());
    return m_state;
}

std::optional<Recording> Camera::recording() const {
    return Recording::of(state(), model());
}

std::optional<Recording> Camera::recordingOf(PARTITIONNUMBER partition) const {
    CameraState asked = state();
    if (partition != asked.partition) {
        const std::lock_guard lock(m_device.mutex());
        static_cast<PartitionMemory&>(asked) = m_otherPartitions.value(partition);
        asked.partition = partition;
    }
    return Recording::of(asked, model());
}

std::vector<Recording> Camera::recordings() const {
    QList<PARTITIONNUMBER> partitions;
    {
        const std::lock_guard lock(m_device.mutex());
        partitions = m_otherPartitions.keys();
        partitions.append(m_state.partition);
    }
    std::sort(partitions.begin(), partitions.end());
    std::vector<Recording> recordings;
    for (const PARTITIONNUMBER partition : partitions) {
        if (const auto recording = recordingOf(partition)) {
            recordings.push_back(*recording);
        }
    }
    return recordings;
}

void Camera::noteSaved(const Recording& recording) {
    const std::lock_guard lock(m_device.mutex());
    PartitionMemory& memory = memoryOf(recording.partition);
    if (memory.serial == recording.serial) {
        memory.savedRanges.append({recording.selectedFirst, recording.selectedLast});
    }
}

void Camera::change(const QVariantMap& members) {
    CameraState checked = state();
    checked.apply(members);
    const std::lock_guard lock(m_device.mutex());
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
    if (!get(&CameraState::connected)) {
        refuse(TextKey("the camera is not connected"));
    }
}

bool Camera::command(CameraOperation operation) {
    ask(operation);
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

void Camera::connect() {
    if (!command(OPERATION("connectDocs"))) {
        return;
    }
    onAllHeads(&CameraState::connected, true);
}

void Camera::disconnect() {
    if (!command(OPERATION("disconnectDocs"))) {
        return;
    }
    for (const auto& head : m_device.heads()) {
        head->set(&CameraState::connected, false);
        head->enterRecordState(zeb::RecordLive);
    }
}

void Camera::refuse(const QString& reason) const {
    throw CameraError(name(), reason);
}

void Camera::require(int function, const char* mode) const {
    if (!model().functions.contains(function)) {
        refuse(QStringLiteral("the camera has no %1").arg(QLatin1String(mode)));
    }
}

void Camera::setRecordRate(unsigned int rate) {
    if (!commandConnected(OPERATION("setRecordRate"))) {
        return;
    }
    try {
        onAllHeads(&CameraState::rate, model().acceptedRate(rate));
    } catch (const std::invalid_argument& refusal) {
        refuse(QString::fromUtf8(refusal.what()));
    }
    for (const auto& head : m_device.heads()) {
        head->fitShutter();
    }
}

/// No exposure lasts longer than a frame; low light mode is there to lift that.
void Camera::fitShutter() {
    if (!get(&CameraState::lowLight)) {
        set(&CameraState::shutter, model().fittingShutter(get(&CameraState::shutter), get(&CameraState::rate)));
    }
}

void Camera::setShutterSpeed(int speed) {
    if (!commandConnected(OPERATION("setShutterSpeed"))) {
        return;
    }
    if (!model().shutters.contains(speed)) {
        refuse(QStringLiteral("a shutter speed of 1/%1 s is not supported").arg(speed));
    }
    for (const auto& head : m_device.heads()) {
        if (head.get() == this || model().sharesShutter) {
            head->set(&CameraState::shutter, speed);
            head->fitShutter();
        }
    }
}

void Camera::setResolution(const QSize& resolution) {
    if (!commandConnected(OPERATION("setResolution"))) {
        return;
    }
    if (!model().resolutions.contains(resolution)) {
        refuse(QStringLiteral("%1 x %2 is not supported").arg(resolution.width()).arg(resolution.height()));
    }
    for (const auto& head : m_device.heads()) {
        if (head.get() == this || model().sharesResolution) {
            head->set(&CameraState::resolution, resolution);
        }
    }
}

void Camera::setTriggerMode(int mode, const zeb::TriggerSettings& settings) {
    if (!commandConnected(OPERATION("setTriggerMode"))) {
        return;
    }
    if (!model().triggerModes.contains(mode)) {
        refuse(QStringLiteral("the trigger mode is not supported"));
    }
    for (const auto& head : m_device.heads()) {
        const double asked = settings.manualBeforePercent;
        const double before = std::isfinite(asked) ? std::clamp(asked, 0.0, 100.0) : 0.0;
        const unsigned int capacity = model().frameCapacity(head->state());
        head->set(&CameraState::triggerMode, mode);
        head->set(&CameraState::triggerFrame, int(capacity * (100.0 - before) / 100.0));
        head->set(&CameraState::randomFrames, settings.randomFrames);
        head->set(&CameraState::randomTimes, settings.randomTimes);
    }
}

void Camera::setRandomTriggerPhase(bool counted) {
    if (!commandConnected(OPERATION("setRandomTriggerPhase"))) {
        return;
    }
    onAllHeads(&CameraState::randomCounted, counted);
}

void Camera::setReduceMode(bool on) {
    if (!commandConnected(OPERATION("setReduceMode"))) {
        return;
    }
    require(zeb::FunctionReduceMode, "live speed to choose");
    set(&CameraState::reduce, on);
}

void Camera::synchronise(const SyncSource& source) {
    if (!commandConnected(OPERATION("synchronise"))) {
        return;
    }
    const std::lock_guard lock(m_device.mutex());
    m_state.syncSource = QString::fromLatin1(source.name);
    m_state.syncFrequency = source.frequency;
    m_state.syncMaster = source.master;
}

void Camera::setLowLight(bool on) {
    if (!commandConnected(OPERATION("setLowLight"))) {
        return;
    }
    require(zeb::FunctionLowLight, "low light mode");
    set(&CameraState::lowLight, on);
    fitShutter();
}

void Camera::setLowLightType(int type) {
    if (!commandConnected(OPERATION("setLowLightType"))) {
        return;
    }
    require(zeb::FunctionLowLight, "low light mode");
    set(&CameraState::lowLightType, type);
}

void Camera::setName(const QString& name) {
    if (!commandConnected(OPERATION("setCameraName"))) {
        return;
    }
    set(&CameraState::name, name);
}

void Camera::setComment(const QString& comment) {
    if (!commandConnected(OPERATION("setComment"))) {
        return;
    }
    set(&CameraState::comment, comment);
}

void Camera::eraseRecordedData() {
    if (!commandConnected(OPERATION("eraseRecordedData"))) {
        return;
    }
    if (isUnderWay()) {
        refuse(QStringLiteral("nothing can be erased while the camera is ready or records"));
    }
    set(&CameraState::recorded, false);
}

void Camera::setPartition(PARTITIONNUMBER partition) {
    if (!commandConnected(OPERATION("setPartition"))) {
        return;
    }
    if (partition < 1 || partition > get(&CameraState::partitions)) {
        throw CameraError(name(), QStringLiteral("there is no partition %1").arg(partition));
    }
    if (isUnderWay()) {
        refuse(QStringLiteral("the partition can't be changed while the camera is ready or records"));
    }
    const std::lock_guard lock(m_device.mutex());
    changePartition(partition);
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

void Camera::setVariable(unsigned int channel) {
    if (!commandConnected(OPERATION("setVariable"))) {
        return;
    }
    if (get(&CameraState::variableChannels).value(int(channel) - 1).isEmpty()) {
        throw CameraError(name(), QStringLiteral("there is no variable channel %1").arg(channel));
    }
    set(&CameraState::variable, channel);
}

void Camera::arm() {
    if (commandConnected(OPERATION("arm"))) {
        enterRecordState(model().ctsReady > 0 ? zeb::RecordCtsReady : zeb::RecordReady);
    }
}

void Camera::trigger() {
    if (commandConnected(OPERATION("trigger"))) {
        keep(get(&CameraState::partition), std::nullopt);
        enterRecordState(zeb::RecordRecording);
    }
}

void Camera::stop() {
    commandConnected(OPERATION("stop"));
}

void Camera::cancel() {
    if (commandConnected(OPERATION("cancel"))) {
        enterRecordState(zeb::RecordLive);
    }
}

void Camera::disarm() {
    if (commandConnected(OPERATION("disarm"))) {
        enterRecordState(zeb::RecordLive);
    }
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
        kept.recordedRate = recording->rate;
        kept.recordedResolution = recording->resolution;
        kept.recordedRange = {recording->first, recording->last};
        kept.recordedTrigger = recording->trigger;
        kept.selectedRange = {recording->selectedFirst, recording->selectedLast};
    }
    const std::lock_guard lock(m_device.mutex());
    memoryOf(partition) = kept;
}

template <typename T>
void Camera::onAllHeads(T CameraState::*member, T value) {
    for (const auto& head : m_device.heads()) {
        head->set(member, value);
    }
}
