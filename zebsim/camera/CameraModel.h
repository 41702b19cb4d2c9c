#pragma once

#include "CameraState.h"

#include <QList>
#include <QSet>
#include <QSize>
#include <QString>
#include <QStringList>

#include <stdexcept>

/// What a type of camera can do. Read from a models file; never changes.
struct CameraModel {
    /// What becomes of a rate that is not in the list.
    enum RateRule { ClampRate, RefuseRate };

    QString name;
    int type = 0;
    bool dummy = false;
    RateRule rateRule = ClampRate;
    /// Rates in frames a second, resolutions in pixels, shutter speeds as n of 1/n second, `zeb::TriggerMode`s.
    QList<unsigned int> rates;
    QList<QSize> resolutions;
    QList<int> shutters;
    QList<int> triggerModes;
    /// `zeb::CameraFunction`s.
    QSet<int> functions;
    /// Capabilities of the image, as "binning".
    QStringList capabilities;
    bool hasSyncStatus = true;
    /// Whether the camera can run on a signal that it shares with others, and the classes of its exposure then.
    bool syncCapable = false;
    int exposureTiming = 0;
    int exposureDelay = 0;
    /// Whether the heads of a device share shutter speed and resolution, with that the frames from a manual trigger on;
    /// rate and trigger mode they always share.
    bool sharesShutter = false;
    bool sharesResolution = false;
    /// Commands that a camera in low light mode refuses, named as in `FaultPlan`.
    QStringList lowLightRefuses;
    /// Bits of a pixel that the camera fills.
    int bitDepth = 8;
    /// Presets that a device keeps; whether it has to start anew to load one, and how long that takes, in milliseconds.
    int presets = 0;
    bool presetReboots = false;
    int bootTime = 0;
    /// How far one pixel in eight strays from what it should be, in levels of 255, and how many pixels stand at full
    /// brightness.
    int grain = 0;
    int hotPixels = 0;
    /// How long the camera waits for CTS before it is ready, in milliseconds; 0 when it does not.
    int ctsReady = 0;
    /// Size of the memory in MiB; a pixel takes one byte.
    int memory = 0;
    /// What a camera of this model starts with.
    CameraState initial;

    /// The rate that the camera takes when `rate` is asked of it: the next lower one, or the lowest. Throws
    /// `std::invalid_argument` when it refuses.
    unsigned int acceptedRate(unsigned int rate) const;
    /// The speed, n of 1/n second, that the camera takes when `speed` is asked of it at `rate` frames a second: an
    /// exposure fits into a frame if the list has one that does.
    int fittingShutter(int speed, unsigned int rate) const;
    /// Whether the heads of a device have one value of a setting for all of them.
    bool isShared(const QString& setting) const;
    /// Throws `StateError` for a setting that is in none of the lists or that no camera can have, for a source of the
    /// signal that there is not, and for a preset that the model does not have or can't load.
    void check(const CameraState& state) const;
    /// Frames that fit into a partition of the memory.
    unsigned int frameCapacity(const CameraState& state) const;

private:
    void checkPresets(const CameraState& state) const;
};
