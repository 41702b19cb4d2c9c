#include "APP_ConcurrentException.h"
#include "ProbeBridge.h"

#include <QRegularExpression>

#include <gtest/gtest.h>

namespace {

using BridgeCall = BridgeTest;

TEST_F(BridgeCall, BoxStandsAfterUpdateAndLeaveAndInsideThePause) {
    bridge.work = [] { throw std::runtime_error("camera 3 is silent"); };
    desk.whileStanding = [&] { EXPECT_TRUE(bridge.isInCall()); };
    EXPECT_EQ(bridge.run(), "fallback");
    EXPECT_EQ(course.take(), QStringList({"pause", "info: [ENTER] \"ProbeBridge::run\" \"\"", "updateUI 63 true",
                                          "info: [LEAVE] \"ProbeBridge::run\"", "critical: \"camera 3 is silent\"",
                                          "error <camera 3 is silent>", "resume"}));
    EXPECT_FALSE(bridge.isInCall());
}

TEST_F(BridgeCall, EveryKindOfFailureEndsInTheFrame) {
    const struct {
        std::function<void()> failure;
        QStringList boxes;
    } cases[] = {
        {[] { throw APP_Exception(""); }, {}},
        {[] { throw APP_ConcurrentException(APP_Exception("inner")); }, {"error <inner>"}},
        {[] { throw 42; }, {"error <Unknown failure.>"}},
        {[] { throw std::bad_alloc(); }, {"error <std::bad_alloc>"}},
    };
    for (const auto& row : cases) {
        bridge.work = row.failure;
        EXPECT_EQ(bridge.run(), "fallback");
        const QStringList entries = course.take();
        EXPECT_EQ(entries.filter(QRegularExpression("^error ")), row.boxes);
        EXPECT_EQ(entries.last(), "resume");
    }

    fail("errorHandler");
    EXPECT_EQ(bridge.run(), "fallback");
    EXPECT_EQ(course.take().mid(4), QStringList({"critical: \"no answer\"", "resume"}));
}

TEST_F(BridgeCall, OnlyTheOutermostOfNestedCallsPauses) {
    bridge.work = [&] {
        bridge.work = [] { throw 1; };
        EXPECT_EQ(bridge.run(), "fallback");
        EXPECT_TRUE(bridge.confirm("sure?"));
        EXPECT_TRUE(bridge.isInCall());
    };
    EXPECT_EQ(bridge.run(), "done");
    const QStringList entries = course.take();
    EXPECT_EQ(entries.count("pause"), 1);
    EXPECT_EQ(entries.count("resume"), 1);
    EXPECT_EQ(entries.last(), "resume");
}

TEST_F(BridgeCall, WhatWaitsForTheEndRunsWhenNoCallRuns) {
    bridge.work = [&] {
        bridge.afterCalls([] { Course::note("after"); });
        // A message box lets the event loop run.
        QCoreApplication::processEvents();
        Course::note("still in the call");
    };
    bridge.run();
    QCoreApplication::processEvents();
    EXPECT_EQ(course.take().mid(2), QStringList({"still in the call", "updateUI 63 true",
                                                 "info: [LEAVE] \"ProbeBridge::run\"", "resume", "after"}));

    // Between two calls: the second, which began first, holds it up once more.
    bridge.work = [&] { bridge.afterCalls([] { Course::note("after"); }); };
    bridge.run();
    bridge.work = [] { QCoreApplication::processEvents(); };
    bridge.run();
    EXPECT_FALSE(course.take().contains("after"));
    QCoreApplication::processEvents();
    EXPECT_EQ(course.take(), QStringList("after"));

    auto* doomed = new ProbeBridge(&host);
    QPointer<ProbeBridge> alive(doomed);
    doomed->afterCalls([doomed] { delete doomed; });
    doomed->afterCalls([] { Course::note("after the deletion"); });
    QCoreApplication::processEvents();
    EXPECT_TRUE(alive.isNull());
    EXPECT_EQ(course.take(), QStringList()) << "what was to come behind is forgotten with the bridge";
}

}  // namespace
