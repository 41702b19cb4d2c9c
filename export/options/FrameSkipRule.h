#pragma once

#include "PrefReader.h"

/// Which frames of a recording are saved: one in so many, or one in so long a time. Pure.
struct FrameSkipRule {
    /// At least 1, which is all.
    int frames = 1;
    /// In ten thousandths of a millisecond; 0: as `frames` says.
    qint64 span = 0;

    static constexpr qint64 SpansInSecond = 10'000'000;

    /// Frames from one that is saved to the next, at `rate` frames a second.
    int stepAt(unsigned int rate) const;

    /// As the preferences of `family`, as "export/", choose.
    static FrameSkipRule chosen(const PrefReader& pref, const QString& family);
};
