#pragma once

#include "ZebTypes.h"

#include <limits>

class ZebHost;

// For the bridges of export dialogs, through `JS_Mediator`; the table exports nothing by itself.

/// How an export may thin out the frames it writes: bounds of the distance between two of them and, by time, the
/// distances on offer. In frames, or in milliseconds by time.
struct FrameSkip {
    double minFrames = 1.0;
    double maxFrames = 1.0;
    /// Largest common divisor of the record rates, in frames a second; 0 before it was asked for.
    int rate = 0;
    QList<double> list;

    /// `value` where it lies inside the bounds, else the lower one.
    double clamped(double value) const;
    /// What the list offers next to `value`, the first of two; `value` itself without a list.
    double nearest(double value) const;
};

/// Values of `JS_Mediator::getSkipMode`.
enum FrameSkipMode { SkipByFrames = 0, SkipByTime = 1 };

/// The partitions that are to be exported, by document.
using ExportTargets = QMap<DOC_Interface*, QList<PARTITIONNUMBER>>;

/// Stands for the frame count when no partition holds a frame.
constexpr unsigned int NoFrameCount = std::numeric_limits<unsigned int>::max();

/// What follows from the shortest recording.
FrameSkip skipByFrames(FrameSkip skip, unsigned int leastFrames);
/// What follows from the shortest recording and the rates of all, in frames a second. The list stands while their
/// divisor stays the same.
FrameSkip skipByTime(FrameSkip skip, const QList<unsigned int>& rates, unsigned int leastFrames);

/// The count of frames of the shortest recording that has any. Throws what the documents throw.
unsigned int leastFrameCount(const ExportTargets& targets);
/// The rates of the recordings, those that are known. Throws what the documents throw.
QList<unsigned int> recordRates(const ZebHost& host, const ExportTargets& targets);
