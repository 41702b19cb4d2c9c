#include "APP_ConcurrentException.h"
#include "FakeHost.h"
#include "FakePlugin.h"
#include "JS_Mediator_ModelessPatternDialog.h"
#include "ProbeBridge.h"

#include <QMetaMethod>
#include <QTest>

#include <gtest/gtest.h>

namespace {

class BridgeCall : public testing::Test {
protected:
    Journal journal;
    FakeHost host;
    ProbeBridge bridge{&host};
};

TEST_F(BridgeCall, BoxStandsAfterUpdateAndLeaveAndInsideThePause) {
    bridge.work = [] { throw std::runtime_error("camera 3 is silent"); };
    host.onBox = [&] { EXPECT_TRUE(bridge.isInCall()); };
    EXPECT_EQ(bridge.run(), "fallback");
    EXPECT_EQ(journal.take(),
              QStringList({"pause", "info: [ENTER] \"ProbeBridge::run\" \"\"", "updateUI 63",
                           "info: [LEAVE] \"ProbeBridge::run\"", "errorHandler camera 3 is silent", "resume"}));
    EXPECT_FALSE(bridge.isInCall());
}

TEST_F(BridgeCall, EveryKindOfFailureEndsInTheFrame) {
    const struct {
        std::function<void()> failure;
        const char* box;
    } cases[] = {
        {[] { throw APP_Exception(""); }, "errorHandler"},
        {[] { throw APP_ConcurrentException(APP_Exception("inner")); }, "errorHandler inner"},
        {[] { throw 42; }, "errorHandler Unknown failure."},
        {[] { throw std::bad_alloc(); }, "errorHandler std::bad_alloc"},
    };
    for (const auto& row : cases) {
        bridge.work = row.failure;
        EXPECT_EQ(bridge.run(), "fallback");
        const QStringList entries = journal.take();
        EXPECT_TRUE(entries.contains(row.box)) << entries.join('\n').toStdString();
        EXPECT_EQ(entries.last(), "resume");
    }

    host.failing = "errorHandler";
    EXPECT_EQ(bridge.run(), "fallback");
    EXPECT_EQ(journal.take().mid(4),
              QStringList({"errorHandler std::bad_alloc", "critical: \"errorHandler\"", "resume"}));
}

TEST_F(BridgeCall, OnlyTheOutermostOfNestedCallsPauses) {
    bridge.work = [&] {
        bridge.work = [] { throw 1; };
        EXPECT_EQ(bridge.run(), "fallback");
        EXPECT_TRUE(bridge.confirm("sure?"));
        EXPECT_TRUE(bridge.isInCall());
    };
    EXPECT_EQ(bridge.run(), "done");
    const QStringList entries = journal.take();
    EXPECT_EQ(entries.count("pause"), 1);
    EXPECT_EQ(entries.count("resume"), 1);
    EXPECT_EQ(entries.last(), "resume");
}

TEST_F(BridgeCall, WhatWaitsForTheEndRunsWhenNoCallRuns) {
    bridge.work = [&] {
        bridge.afterCalls([] { Journal::note("after"); });
        // A message box lets the event loop run.
        QCoreApplication::processEvents();
        Journal::note("still in the call");
    };
    bridge.run();
    QCoreApplication::processEvents();
    EXPECT_EQ(journal.take().mid(2), QStringList({"still in the call", "updateUI 63",
                                                  "info: [LEAVE] \"ProbeBridge::run\"", "resume", "after"}));

    // Between two calls: the second, which began first, holds it up once more.
    bridge.work = [&] { bridge.afterCalls([] { Journal::note("after"); }); };
    bridge.run();
    bridge.work = [] { QCoreApplication::processEvents(); };
    bridge.run();
    EXPECT_FALSE(journal.take().contains("after"));
    QCoreApplication::processEvents();
    EXPECT_EQ(journal.take(), QStringList("after"));

    auto* doomed = new ProbeBridge(&host);
    QPointer<ProbeBridge> alive(doomed);
    doomed->afterCalls([doomed] { delete doomed; });
    doomed->afterCalls([] { Journal::note("after the deletion"); });
    QCoreApplication::processEvents();
    EXPECT_TRUE(alive.isNull());
    EXPECT_EQ(journal.take(), QStringList()) << "what was to come behind is forgotten with the bridge";
}

TEST_F(BridgeCall, NoSlotLetsAnExceptionOut) {
    FakePlugin plugin;
    JS_Mediator_ModelessPatternDialog victim(&host, "victim", &plugin);
    host.failing = "*";
    int slots = 0;
    for (int i = QObject::staticMetaObject.methodCount(); i < victim.metaObject()->methodCount(); ++i) {
        const QMetaMethod method = victim.metaObject()->method(i);
        if (method.methodType() != QMetaMethod::Slot || method.name() == "errorHandler") continue;
        QVariantList values;
        QVector<void*> arguments{nullptr};
        QVariant answer(method.returnType(), nullptr);
        if (method.returnType() != QMetaType::Void) arguments[0] = answer.data();
        for (int p = 0; p < method.parameterCount(); ++p) values.append(QVariant(method.parameterType(p), nullptr));
        for (int p = 0; p < method.parameterCount(); ++p)
            arguments.append(method.parameterType(p) == QMetaType::QVariant ? static_cast<void*>(&values[p])
                                                                            : values[p].data());
        EXPECT_NO_THROW(victim.qt_metacall(QMetaObject::InvokeMetaMethod, i, arguments.data()))
            << method.methodSignature().toStdString();
        EXPECT_FALSE(victim.isInCall());
        ++slots;
    }
    std::cout << slots << " slots\n";
    EXPECT_GE(slots, 85);
}

}  // namespace
