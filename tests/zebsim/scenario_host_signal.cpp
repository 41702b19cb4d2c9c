#include "HostSignal.h"
#include "ScenarioError.h"
#include "support/ShotPlugin.h"

#include <QCoreApplication>

#include <gtest/gtest.h>

namespace {

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
