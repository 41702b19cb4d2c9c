#include "LiveObjects.h"
#include "TablePage.h"

#include <QDialog>
#include <QTest>

#include <gtest/gtest.h>

#include <iostream>

namespace {

TEST(PageSessions, leaveNothingBehind) {
    TestHost test(Rig::fromFile(QStringLiteral("eight-mixed")));
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
    for (int round = 0; round < 10; ++round) session(round);
    test.desk.shown.clear();
    const Leftovers first = Leftovers::now();
    for (int round = 0; round < 200; ++round) session(round);
    const Leftovers last = Leftovers::now();
    std::cout << "after 200 sessions: ";
    PrintTo(last, &std::cout);
    std::cout << std::endl;
    EXPECT_EQ(last.objects, first.objects);
    EXPECT_EQ(last.timers, first.timers);
    EXPECT_EQ(last.threads, first.threads);
    EXPECT_EQ(test.desk.shown.size(), 200) << "one question a session, nothing else";
    test.desk.shown.clear();
}

}  // namespace
