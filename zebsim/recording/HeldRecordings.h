#pragma once

#include "Recording.h"
#include "ZebTypes.h"

#include <QString>

#include <vector>

class CameraBank;

/// What a camera holds in one of its partitions.
struct HeldRecording {
    /// Its name, with its address where another camera is called alike.
    QString camera;
    /// The camera has several partitions.
    bool isDivided = false;
    /// The camera records over it once it is armed.
    bool isInTheWay = false;
    Recording recording;
};

using HeldRecordings = std::vector<HeldRecording>;

/// Of all cameras that the host knows, gone ones too; the cameras of `toArm` are about to be armed. GUI thread.
HeldRecordings heldRecordings(const CameraBank& cameras, const DocKeyList& toArm = {});

/// What stands in no file and is lost once the cameras that are about to be armed record. Pure.
HeldRecordings lostByRecording(const HeldRecordings& held);
/// What stands in no file and is lost with the program: what was recorded by it, for what a camera held before comes
/// with the camera again. Pure.
HeldRecordings lostByClosing(const HeldRecordings& held);
