#pragma once

#include <memory>
#include <vector>

class PLG_Interface;
class SimAppStatus;
class ZebHost;

/// The host's own plug-ins, a tool for each effect on the images of a camera. They have no dialog: their numbers stand
/// in the camera's window. GUI thread.
class ImagePlugins {
public:
    /// They are registered with `appStatus`; both must outlive the object.
    ImagePlugins(ZebHost& host, SimAppStatus& appStatus);
    ~ImagePlugins();

private:
    SimAppStatus& m_appStatus;
    std::vector<std::unique_ptr<PLG_Interface>> m_plugins;
};
