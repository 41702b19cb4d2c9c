#include "FileRecording.h"

#include "FilePictures.h"
#include "ImageEffects.h"
#include "InformationReader.h"
#include "TargetDisk.h"

#include <QFileInfo>

#include <algorithm>
#include <limits>

namespace {

/// It has what the recording needs, and can do nothing.
std::shared_ptr<const CameraModel> modelOf(const RecordingInformation& information) {
    const Recording& recording = information.recording;
    const qint64 frameBytes = qint64(recording.resolution.width()) * recording.resolution.height();
    const qint64 bytes = frameBytes * recording.frameCount() * recording.partition;
    auto model = std::make_shared<CameraModel>();
    model->name = information.model;
    model->rates = {recording.rate};
    model->resolutions = {recording.resolution};
    model->shutters = {recording.shutter};
    model->triggerModes = {zeb::TriggerStart};
    model->bitDepth = information.bits;
    model->hasSyncStatus = false;
    model->memory = int(std::min<qint64>((bytes >> 20) + 1, std::numeric_limits<int>::max()));
    return model;
}

QStringList effectsOnFiles() {
    QStringList names;
    for (const ImageEffect& effect : imageEffects()) {
        if ((effect.modes >> zeb::FileMode & 1) != 0) {
            names << effect.name;
        }
    }
    return names;
}

CameraState stateOf(const RecordingInformation& information, const QString& path) {
    const Recording& recording = information.recording;
    CameraState state;
    state.name = information.camera;
    state.comment = information.comment;
    state.customInfo = recording.customInfo;
    state.connected = true;
    state.rate = recording.rate;
    state.resolution = recording.resolution;
    state.shutter = recording.shutter;
    state.plugins = effectsOnFiles();
    state.partitions = recording.partition;
    state.partition = recording.partition;
    for (PARTITIONNUMBER other = 1; other < recording.partition; ++other) {
        state.partitionNames << QString();
    }
    state.partitionNames << information.partitionName;
    state.recorded = true;
    state.shoot = recording.shoot;
    state.recordedRange = {recording.first, recording.last};
    state.recordedTrigger = recording.trigger;
    state.triggerOffsetEnabled = recording.zero != recording.trigger;
    state.triggerOffset = recording.zero;
    state.recordedCustomInfo = recording.customInfo;
    state.pictures = std::make_shared<FilePictures>(path, information);
    state.sourceFile = path;
    state.originalName = QFileInfo(path).completeBaseName();
    return state;
}

}  // namespace

FileRecording FileRecording::open(const QString& path, TargetDisk& disk) {
    FileRecording opened;
    opened.told = readInformation(path);
    const RecordingInformation information = asOpened(opened.told);
    opened.device = {information.address, modelOf(information), 0, true, {stateOf(information, path)}};
    const QStringList& there = disk.namesIn(QFileInfo(path).path());
    opened.missing =
        int(std::count_if(information.files.begin(), information.files.end(), [&there](const QString& name) {
            return !std::binary_search(there.begin(), there.end(), name);
        }));
    return opened;
}
