#pragma once

#include "InformationFile.h"
#include "Rig.h"

class TargetDisk;

/// A recording that this program has saved, opened again.
struct FileRecording {
    /// A camera that has it in its memory.
    RigDevice device;
    /// What stands in the file that tells of it.
    RecordingInformation told;
    /// Files with frames of it that are not there.
    int missing = 0;

    /// By the file that tells of it, docs/recordings.md. Throws `JsonError`. Each folder is looked at once by `disk`.
    static FileRecording open(const QString& path, TargetDisk& disk);
};
