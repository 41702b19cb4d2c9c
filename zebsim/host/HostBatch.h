#pragma once

#include "CameraBatch.h"

class ParallelRows;
struct HostContext;

/// A command to many cameras takes as long as the slowest of them. From the second second on the user sees who has not
/// answered, and may leave out those that it has not reached. GUI thread.
class HostBatch : public CameraBatch {
public:
    explicit HostBatch(const HostContext& host) : m_host(host) {}

    QStringList run(const HeldCameras& cameras, const std::function<void(Camera&)>& command) override;
    /// The same; when some have failed, throws a `std::runtime_error`, a line for each.
    void runOrThrow(const HeldCameras& cameras, const std::function<void(Camera&)>& command);

private:
    QStringList runInOrder(const HeldCameras& cameras, const std::function<void(Camera&)>& command);
    QStringList runAtOnce(const HeldCameras& cameras, const std::function<void(Camera&)>& command);

    void showWait(ParallelRows& rows, const HeldCameras& cameras);

    const HostContext& m_host;
};
