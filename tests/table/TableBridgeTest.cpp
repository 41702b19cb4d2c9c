#include "TableFixture.h"

#include <QSignalSpy>
#include <QTest>
#include <QTimer>
#include <QWebFrame>
#include <QWebPage>

namespace {

class TableBridgeTest : public BridgeFixture {
protected:
    TableBridgeTest() {
        host.setPrefInt("wren/table/interval", 1);
        makeBridge();
        ticks = std::make_unique<QSignalSpy>(bridge.get(), &JS_Mediator_WrenTableDialog::autoUpdate);
        connectAll();
        calls();
    }

    /// Lets a timer of the same interval run a few times and answers how many ticks of the table came.
    int ticksMeanwhile() {
        ticks->clear();
        QTimer timer;
        QSignalSpy others(&timer, &QTimer::timeout);
        timer.start(1);
        EXPECT_TRUE(QTest::qWaitFor([&] { return others.count() >= 5; }));
        return ticks->count();
    }

    bool comesATick() {
        ticks->clear();
        return ticks->wait();
    }

    std::unique_ptr<QSignalSpy> ticks;
};

TEST_F(TableBridgeTest, WhileABoxStandsThePageIsAnsweredButChangesNothing) {
    QString records;
    Course course;
    desk.whileStanding = [&] {
        bridge->setFrameRate({1}, "2000");
        bridge->setParamLock({1}, true);
        bridge->connect({1}, false);
        bridge->select({1}, true);
        bridge->editDoc(1);
        EXPECT_FALSE(bridge->confirmDisconnect({1}));
        records = bridge->getRecords(R"({"group":"","filter":1,"tab":1})");
        bridge->connect({1, 2}, false, true);
        EXPECT_TRUE(stateOf(1, "connected").toBool());
    };
    EXPECT_TRUE(bridge->confirm("Sure?"));
    EXPECT_EQ(desk.texts(), QStringList{"Sure?"});
    EXPECT_EQ(course.take().filter("refused").size(), 6);
    EXPECT_FALSE(records.isEmpty());
    EXPECT_TRUE(calls().filter("setRecordRate").isEmpty());
    EXPECT_FALSE(stateOf(1, "locked").toBool());

    // The host's own command was only put off.
    EXPECT_TRUE(QTest::qWaitFor([this] { return !stateOf(2, "connected").toBool(); }));
    EXPECT_FALSE(stateOf(1, "connected").toBool());
}

TEST_F(TableBridgeTest, TicksBeginWithTheFirstCallAndStandStillInACall) {
    EXPECT_EQ(ticksMeanwhile(), 0) << "nobody has asked for anything yet";
    bridge->isLiveMode();
    EXPECT_TRUE(comesATick());

    bridge->stopAutoUpdate();
    EXPECT_EQ(ticksMeanwhile(), 0);
    bridge->startAutoUpdate();
    EXPECT_TRUE(comesATick());

    desk.whileStanding = [&] { bridge->stopAutoUpdate(); };
    bridge->info("inside a call only its end is told");
    EXPECT_EQ(ticksMeanwhile(), 0);
    bridge->isLiveMode();
    EXPECT_TRUE(comesATick()) << "and a later call knows nothing of it";

    desk.whileStanding = [&] {
        bridge->startAutoUpdate();
        EXPECT_EQ(ticksMeanwhile(), 0) << "the call goes on";
        bridge->isLiveMode();
        EXPECT_EQ(ticksMeanwhile(), 0) << "the end of an inner call is not the end";
    };
    bridge->info("nested");
    EXPECT_TRUE(comesATick());
}

TEST_F(TableBridgeTest, NoTicksInFileModeNorWhileTheHostSaves) {
    desk.whileStanding = [&] { host.flags().set("IsSaving", true); };
    bridge->info("saving begins inside the call");
    EXPECT_EQ(ticksMeanwhile(), 0);
    host.flags().set("IsSaving", false);
    desk.whileStanding = [&] { host.appStatus().enterMode(zeb::FileMode); };
    bridge->info("file mode is entered inside the call");
    EXPECT_EQ(ticksMeanwhile(), 0);
    host.appStatus().enterLiveMode();
    bridge->isLiveMode();
    EXPECT_TRUE(comesATick());

    bridge->onOpen();
    EXPECT_TRUE(comesATick()) << "the timers of a restored table take the place of the old ones";
    bridge->onClose();
    bridge->isLiveMode();
    EXPECT_EQ(ticksMeanwhile(), 0) << "a closed table has none";
}

TEST_F(TableBridgeTest, ARunOfSelectionsMakesOneUpdateAndAListThatChangesThemToo) {
    Course course;
    const auto updatesMade = [&course] { return course.take().filter("updateUI ").size(); };
    bridge->getRecords(R"({"group":"","filter":0,"tab":0})");
    EXPECT_EQ(updatesMade(), 1) << "all are selected";
    bridge->getRecords(R"({"group":"","filter":0,"tab":0})");
    EXPECT_EQ(updatesMade(), 0);
    bridge->select({1}, true);
    bridge->select({2}, true);
    bridge->select({"1"}, false);
    EXPECT_EQ(updatesMade(), 0);
    EXPECT_EQ(bridge->getBatchDocKey(), zeb::NoDocKey);
    int updates = 0;
    EXPECT_TRUE(QTest::qWaitFor([&] { return (updates += updatesMade()) > 0; }));
    EXPECT_EQ(updates, 1);
}

TEST_F(TableBridgeTest, KeysCrossThePageAsNumbersAndTexts) {
    QWebPage page;
    page.mainFrame()->addToJavaScriptWindowObject("bridge", bridge.get());
    const auto run = [&page](const char* script) { return page.mainFrame()->evaluateJavaScript(script); };
    change(5, {{"suspendReduce", true}});
    EXPECT_EQ(run("bridge.getBatchDocKey()").toDouble(), 4294967295.0);
    EXPECT_TRUE(run("bridge.isSuspendReduceMode(-1)").toBool());
    EXPECT_TRUE(run("bridge.isSuspendReduceMode('-1')").toBool());
    EXPECT_TRUE(run("bridge.isSuspendReduceMode('5')").toBool());
    EXPECT_FALSE(run("bridge.isSuspendReduceMode(4) || bridge.isSuspendReduceMode(99)").toBool());
    run("bridge.select(['2', 1], true)");
    EXPECT_EQ(calls(), (QStringList{"selectDoc 2", "selectDoc 1"}));
    EXPECT_EQ(run("bridge.getBatchDocKey()").toInt(), 1);
}

}  // namespace
