#include "LiveObjects.h"
#include "TablePage.h"
#include "Until.h"

#include <QDialog>

namespace {

TEST(PageSessions, LeaveNothingBehind) {
    TestHost test(readRig(QStringLiteral("eight-mixed")));
    connectCameras(test, 1, 8);
    TablePage page(test, 1);
    const auto session = [&](int round) {
        page.window().close();
        ASSERT_TRUE(until([&] { return !page.window().isVisible(); })) << round;
        page.open();
        page.settle();
        page.show(round % 5);
        ASSERT_EQ(page.number("probe.drawn().length"), 8) << round;
    };
    Leftovers::now();
    for (int round = 0; round < 10; ++round) {
        session(round);
    }
    test.desk.shown.clear();
    const Leftovers first = Leftovers::now();
    constexpr int Sessions = 200;
    constexpr double Others = 20;
    for (int round = 0; round < Sessions; ++round) {
        session(round);
    }
    const Leftovers last = Leftovers::now();
    // Qt and the web engine may make or end a lasting thread of their own late; ours would be there once a session.
    EXPECT_NEAR(last.objects, first.objects, Others);
    EXPECT_NEAR(last.timers, first.timers, Others);
    EXPECT_NEAR(last.threads, first.threads, Others);
    EXPECT_EQ(test.desk.take().size(), Sessions) << "one question a session, nothing else";
}

TEST(PageSessions, ModesAndACloseGoThroughAQuestion) {
    TestHost test(connected(4));
    TablePage page(test, 1);
    const char* tab = "$('#tabs').tabs('option', 'active')";
    test.desk.whileStanding = [&] {
        page.enter(zeb::MemoryMode);
        EXPECT_EQ(page.number(tab), 5) << "the page follows the host";
        EXPECT_EQ(page.number("probe.drawn().length"), 4) << "queries are answered";
        page.run("wrentabledialog.connect(['1'], false)");
        EXPECT_TRUE(test.camera(1).get(&CameraState::connected)) << "nothing is changed behind the question";
        page.window().close();
        page.update();
        EXPECT_TRUE(page.window().isVisible());
    };
    page.run("wrentabledialog.confirm('Sure?')");
    EXPECT_TRUE(until([&] { return !page.window().isVisible(); })) << "the close comes afterwards";
    EXPECT_EQ(test.desk.take(), QStringList({"Sure?", "Quit WREN?"}));
    page.open();
    page.enter(zeb::LiveMode);
    EXPECT_EQ(page.number(tab), 1);
}

}  // namespace
