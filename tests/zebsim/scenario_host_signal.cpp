#include "HostSignal.h"
#include "ScenarioError.h"
#include "support/StubPlugin.h"

#include <QCoreApplication>

#include <gtest/gtest.h>

namespace {

class ShotPlugin : public StubPlugin {
    Q_OBJECT

public:
    ShotPlugin() {
        connect(
            this, &ShotPlugin::signalShot, this, [this](const QString& wanted) { path = wanted; },
            Qt::BlockingQueuedConnection);
    }

    QString path;

Q_SIGNALS:
    void signalShot(const QString& path);
};

TEST(HostSignal, IsServedBeforeTheCallReturns) {
    ShotPlugin plugin;
    raiseHostSignal(plugin, "signalShot", "/tmp/a.png", [] { return false; });
    EXPECT_EQ(plugin.path, "/tmp/a.png");
    EXPECT_THROW(raiseHostSignal(plugin, "signalNothing", {}, [] { return false; }), ScenarioError);
}

TEST(HostSignal, IsGivenUpWithTheScenario) {
    ShotPlugin plugin;
    EXPECT_THROW(raiseHostSignal(plugin, "signalShot", "/tmp/a.png", [] { return true; }), ScenarioError);
    // The thread that raised it is served when there is time again.
    while (plugin.path.isEmpty()) QCoreApplication::processEvents();
}

}  // namespace

#include "scenario_host_signal.moc"
