#pragma once

#include <QJsonObject>

/// What a command to many cameras that take 50 ms takes, and to one of them, in milliseconds: as `connect` for all
/// cameras and `connectOne` for one. GUI thread.
class CommandBench {
public:
    explicit CommandBench(int cameras) : m_cameras(cameras) {}

    /// `connect`, `rate`, `lock` and `arm`.
    QJsonObject run();
    /// `load` of the default settings, `saveSettings` to a file and `loadSettings` from it; `loadEach` is a load of the
    /// default settings onto one after the other.
    QJsonObject settings();

private:
    const int m_cameras;
};
