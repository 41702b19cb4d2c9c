#include "ImagePlugins.h"

#include "ImageEffects.h"
#include "PLG_Common.h"
#include "SimAppStatus.h"

namespace {

/// Documents are taken in and left out of it; it works on the images of each.
constexpr int ToolOfDocuments = 2;

class ImageTool : public PLG_Common {
public:
    explicit ImageTool(const ImageEffect& effect) {
        m_name = effect.name;
        m_modeMask = effect.modes;
        m_buttonType = ToolOfDocuments;
        m_toolActive = true;
    }
};

}  // namespace

ImagePlugins::ImagePlugins(ZebHost& host, SimAppStatus& appStatus) : m_appStatus(appStatus) {
    for (const ImageEffect& effect : imageEffects()) {
        m_plugins.push_back(std::make_unique<ImageTool>(effect));
        m_plugins.back()->setHost(&host);
        m_appStatus.registerPlugin(m_plugins.back().get());
    }
}

ImagePlugins::~ImagePlugins() {
    for (const auto& plugin : m_plugins) {
        m_appStatus.unregisterPlugin(plugin.get());
    }
}
