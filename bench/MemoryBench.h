#pragma once

#include "BenchHost.h"

#include <QJsonObject>

class OpenTable;

/// Measures how the process grows while the table ticks, on the tab of the live control. GUI thread.
class MemoryBench {
public:
    explicit MemoryBench(int cameras) : m_cameras(cameras) {}

    /// MiB: "growth" of the resident set from the 1,000th to the 10,000th tick, each of which finds the values of a
    /// tenth of the cameras changed, and the resident set at its "end".
    QJsonObject run();

private:
    void tick(const OpenTable& table, int first, int last);

    BenchHost m_cameras;
};
