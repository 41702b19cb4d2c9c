#pragma once

#include "BenchHost.h"

#include <QJsonObject>

class OpenTable;

/// Measures the memory of the process while the table ticks, on the tab of the live control; each tick finds the values
/// of a tenth of the cameras changed. GUI thread.
class MemoryBench {
public:
    explicit MemoryBench(int cameras) : m_cameras(cameras) {}

    /// MiB: the "resident" set after 1,000 ticks.
    QJsonObject run();
    /// MiB: its "growth" from the 1,000th to the 10,000th tick, and what it is at the "end".
    QJsonObject growth();

private:
    /// The resident set after the ticks from `first` on, up to `last`.
    double residentAfter(const OpenTable& table, int first, int last);

    BenchHost m_cameras;
};
