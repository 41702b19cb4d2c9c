#pragma once

#include "CameraBatch.h"

class ParallelRows;
struct HostContext;

/// A command to many cameras takes as long as the slowest of them. From the second second on the user sees who has not
/// answered, and may leave out those that it has not reached. GUI thread.
class HostBatch : public CameraBatch {
public:
    explicit HostBatch(const HostContext& host) : m_host(host) {}

    std::vector<CameraAnswer> run(const HeldCameras& cameras, const std::function<void(Camera&)>& command) override;
    /// The same; when some have failed, throws a `std::runtime_error`, a line for each, which is a `ZebLeftOut` when
    /// the user has left some out.
    void runOrThrow(const HeldCameras& cameras, const std::function<void(Camera&)>& command);

private:
    std::vector<CameraAnswer> runInOrder(const HeldCameras& cameras, const std::function<void(Camera&)>& command);
    std::vector<CameraAnswer> runAtOnce(const HeldCameras& cameras, const std::function<void(Camera&)>& command);

    void showWait(ParallelRows& rows, const HeldCameras& cameras);

    const HostContext& m_host;
};
