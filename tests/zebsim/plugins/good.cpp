#include "PLG_Common.h"

#include <QCoreApplication>

namespace {

/// Tells the program what becomes of it, through the application's properties.
class GoodPlugin : public PLG_Common {
public:
    GoodPlugin() { m_name = QStringLiteral("good"); }
    ~GoodPlugin() override { qApp->setProperty("goodPluginDeleted", true); }
    void setHost(ZebHost* host) override {
        PLG_Common::setHost(host);
        qApp->setProperty("goodPluginHasHost", host != nullptr);
    }
};

}  // namespace

extern "C" Q_DECL_EXPORT PLG_Interface* makeButtonPlugin() {
    return new GoodPlugin;
}
