#include "CommandLine.h"
#include "Simulator.h"
#include "ViewerWindow.h"

#include <QAction>
#include <QTemporaryDir>
#include <QTimer>

#include <gtest/gtest.h>

namespace {

class ViewerTest : public testing::Test {
protected:
    QTemporaryDir folder;
    const CommandLine line =
        CommandLine::parse({"zebsim", "--rig", "2", "--prefs", folder.filePath("p.ini"), "--style", "dark"});
    Simulator simulator{line};
};

TEST_F(ViewerTest, EndsTheApplicationWhenItIsClosed) {
    EXPECT_EQ(simulator.run([&] { simulator.window().close(); }), 0);
    EXPECT_TRUE(simulator.host().isApplicationClosing());
}

TEST_F(ViewerTest, TakesAStandingQuestionForRefusedWhenItIsClosed) {
    bool agreed = true;
    simulator.run([&] {
        QTimer::singleShot(0, &simulator.window(), [&] { simulator.window().close(); });
        agreed = simulator.host().confirm("Sure?");
    });
    EXPECT_FALSE(agreed);
}

TEST_F(ViewerTest, ShowsAndSwitchesTheModeAndTheStyle) {
    const auto choice = [&](const char* name) { return simulator.window().findChild<QAction*>(name); };
    EXPECT_TRUE(choice("mode0")->isChecked());
    EXPECT_TRUE(choice("dark")->isChecked());
    choice("mode1")->trigger();
    EXPECT_EQ(simulator.host().getOperatingMode(), zeb::MemoryMode);
    choice("light")->trigger();
    EXPECT_EQ(simulator.host().prefs().value("env/style"), "light");
    simulator.host().appStatus().enterMode(zeb::FileMode);
    EXPECT_TRUE(choice("mode2")->isChecked()) << "a change from elsewhere shows as well";
}

}  // namespace
