#pragma once

#include "ZebTypes.h"
#include "camera/Recording.h"

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

/// What is lost and stands in no file. Pure.
///
/// Once the cameras that are about to be armed record.
HeldRecordings lostByRecording(const HeldRecordings& held);
/// With the program: what was recorded by it. What a camera held before comes with the camera again.
HeldRecordings lostByClosing(const HeldRecordings& held);
