#pragma once

#include "FrameSkipRule.h"

#include <vector>

/// A range of frames on the common time: they are counted from the frame of the trigger, which is at 0.
struct TimedRange {
    /// Frames a second.
    unsigned int rate = 1;
    qint64 first = 0;
    qint64 last = 0;
};

/// The moments at which recordings of any rates are looked at side by side. They lie at whole multiples of one step
/// from the trigger, from the first frame of all ranges to the last; there is at least one. Without rounding. Pure.
class TimeSteps {
public:
    TimeSteps() = default;
    /// A step is a frame of the fastest, or as many or as long as `skip` says.
    TimeSteps(const std::vector<TimedRange>& ranges, const FrameSkipRule& skip);

    int count() const { return m_count; }
    /// Of moment `index`, from 0 on: microseconds from the trigger, and the last frame of a recording of `rate` that is
    /// not later, counted as in a range.
    qint64 time(int index) const { return frameAt(index, 1'000'000); }
    qint64 frameAt(int index, unsigned int rate) const;

private:
    /// A step in seconds is a fraction.
    qint64 m_numerator = 1;
    qint64 m_denominator = 1;
    /// The first one, counted from the trigger.
    qint64 m_first = 0;
    int m_count = 1;
};
