#pragma once

#include "BenchHost.h"
#include "CpuTime.h"

#include <QJsonObject>
#include <QObject>

/// Measures refreshes and ticks of the table: the real page with the real bridge, on the tab of the live control. GUI
/// thread.
class TableBench : public QObject {
    Q_OBJECT

public:
    explicit TableBench(int cameras) : m_cameras(cameras) {}

    /// Times in milliseconds by their names in measure.js. Throws `std::runtime_error` when the page fails.
    QJsonObject run();

public Q_SLOTS:
    // What the page asks for between two measurements; `run` counts them.
    /// The page's own clock has no parts of a millisecond.
    double now() const { return cpuTime(); }
    void changeAll(int run) { m_cameras.change(1, run); }
    void changeTenth(int run) { m_cameras.change(10, run); }
    void changeHidden() { m_cameras.changeHidden(); }
    void showOthers(int run) { m_cameras.showOthers(run); }

private:
    BenchHost m_cameras;
};
