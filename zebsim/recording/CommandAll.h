#pragma once

#include <QStringList>

#include <memory>
#include <vector>

class Camera;

using HeldCameras = std::vector<std::shared_ptr<Camera>>;

/// The cameras take their time side by side. Answers what was wrong with each; nothing when it has done it.
QStringList commandAll(const HeldCameras& cameras, void (Camera::*command)());
