#include "CommandAll.h"

#include "Camera.h"

#include <exception>
#include <future>
#include <system_error>

QStringList commandAll(const HeldCameras& cameras, void (Camera::*command)()) {
    std::vector<std::future<QString>> answers;
    for (const auto& camera : cameras) {
        const auto work = [camera, command] {
            try {
                (*camera.*command)();
                return QString();
            } catch (const std::exception& failure) {
                return QString::fromUtf8(failure.what());
            }
        };
        try {
            answers.push_back(std::async(std::launch::async, work));
        } catch (const std::system_error&) {
            // No further thread is to be had, so this camera waits for its turn.
            answers.push_back(std::async(std::launch::deferred, work));
        }
    }
    QStringList reasons;
    for (auto& answer : answers) {
        reasons.append(answer.get());
    }
    return reasons;
}
