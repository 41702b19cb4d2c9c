#pragma once

#include <QJsonObject>

/// What a command to many cameras that take 50 ms takes, and to one of them. GUI thread.
class CommandBench {
public:
    explicit CommandBench(int cameras) : m_cameras(cameras) {}

    /// Milliseconds of each command, as `connect` for all cameras and `connectOne` for one; `loadEach` is a load of the
    /// default settings onto one after the other.
    QJsonObject run();

private:
    const int m_cameras;
};
