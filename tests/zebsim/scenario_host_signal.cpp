#include "HostSignal.h"
#include "ScenarioError.h"
#include "support/StubPlugin.h"

#include <QCoreApplication>

#include <gtest/gtest.h>

namespace {

class HostSignal : public testing::Test {
protected:
    HostSignal() {
        QObject::connect(
            &plugin, &StubPlugin::signalScreenShot, &plugin, [this](const QString& wanted) { path = wanted; },
            Qt::BlockingQueuedConnection);
    }

    StubPlugin plugin;
    QString path;
};

TEST_F(HostSignal, IsServedBeforeTheCallReturns) {
    raiseHostSignal(plugin, "signalScreenShot", "/tmp/a.png", [] { return false; });
    EXPECT_EQ(path, "/tmp/a.png");
    EXPECT_THROW(raiseHostSignal(plugin, "signalNothing", {}, [] { return false; }), ScenarioError);
}

TEST_F(HostSignal, IsGivenUpWithTheScenario) {
    EXPECT_THROW(raiseHostSignal(plugin, "signalScreenShot", "/tmp/a.png", [] { return true; }), ScenarioError);
    // The thread that raised it is served when there is time again.
    while (path.isEmpty()) {
        QCoreApplication::processEvents();
    }
}

}  // namespace
