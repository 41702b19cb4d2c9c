#pragma once

#include <QString>

/// The plug-ins of the host that work on the images of a camera.
namespace imageplugins {

bool has(const QString& name);

/// Whether its changes take effect only when the user presses OK; false for a plug-in that does not exist.
bool needsOk(const QString& name);

}  // namespace imageplugins
