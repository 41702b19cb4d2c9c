#pragma once

#include <QElapsedTimer>
#include <QJsonObject>
#include <QObject>

class SimHost;

/// Measures the table with a number of cameras, in this process: the real page with the real bridge, on the tab of
/// the live control. GUI thread.
class TableBench : public QObject {
    Q_OBJECT

public:
    explicit TableBench(int cameras) : m_cameras(cameras) {}

    /// Times in milliseconds by their names in measure.js. Throws `std::runtime_error` when the page fails.
    QJsonObject run();

public Q_SLOTS:
    // What the page asks for between two measurements; `run` counts them.
    /// Milliseconds since the measurement began, with their parts.
    double now() const { return double(m_clock.nsecsElapsed()) / 1e6; }
    /// Every value that a row shows.
    void changeAll(int run);
    /// The values of one camera in ten.
    void changeTenth(int run);
    /// Something that changes the text of the answer, but nothing on the screen.
    void changeHidden(int run);
    /// Half of the cameras are gone; the others take their place at the next call.
    void showOthers(int run);

private:
    void change(int step, int run);

    QElapsedTimer m_clock;
    const int m_cameras;
    SimHost* m_host = nullptr;
};
