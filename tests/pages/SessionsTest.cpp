#include "LiveObjects.h"
#include "TablePage.h"

#include <QDialog>
#include <QTest>

#include <iostream>

namespace {

TEST(PageSessions, leaveNothingBehind) {
    TestHost test(readRig(QStringLiteral("eight-mixed")));
    connectCameras(test, 1, 8);
    TablePage page(test, 1);
    const auto session = [&](int round) {
        page.window().close();
        ASSERT_TRUE(QTest::qWaitFor([&] { return !page.window().isVisible(); })) << round;
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
    std::cout << "after " << Sessions << " sessions: ";
    PrintTo(last, &std::cout);
    std::cout << std::endl;
    // Qt and the web engine may make or end a lasting thread of their own late; ours would be there once a session.
    EXPECT_NEAR(last.objects, first.objects, Others);
    EXPECT_NEAR(last.timers, first.timers, Others);
    EXPECT_NEAR(last.threads, first.threads, Others);
    EXPECT_EQ(test.desk.shown.size(), Sessions) << "one question a session, nothing else";
    test.desk.shown.clear();
}

}  // namespace
