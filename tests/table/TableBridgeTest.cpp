#include "JS_Mediator_WrenTableDialog.h"
#include "PLG_wren.h"
#include "TableFixture.h"

#include <QMetaMethod>
#include <QSignalSpy>
#include <QTest>
#include <QTimer>
#include <QWebFrame>
#include <QWebPage>

#include <iostream>

namespace {

/// What happens while it lives, in its order: lines of the log, requests for an update, boxes.
class Course {
public:
    explicit Course(SimHost& host) {
        lines.clear();
        m_previous = qInstallMessageHandler(
            [](QtMsgType, const QMessageLogContext&, const QString& line) { lines.append(line.trimmed()); });
        m_connection = QObject::connect(&host.journal(), &Journal::recorded, [](const QString& call) {
            if (call == QLatin1String("ZebHost::updateUI")) {
                lines.append(QStringLiteral("update"));
            }
        });
    }
    ~Course() {
        QObject::disconnect(m_connection);
        qInstallMessageHandler(m_previous);
    }
    Q_DISABLE_COPY(Course)

    static inline QStringList lines;

private:
    QtMessageHandler m_previous;
    QMetaObject::Connection m_connection;
};

class TableBridgeTest : public TableFixture {
protected:
    TableBridgeTest() {
        host.setPrefInt("wren/table/interval", 1);
        plugin.setHost(&host);
        bridge = std::make_unique<JS_Mediator_WrenTableDialog>(&host, "wrentabledialog", &plugin);
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

    PLG_wren plugin;
    std::unique_ptr<JS_Mediator_WrenTableDialog> bridge;
    std::unique_ptr<QSignalSpy> ticks;
};

TEST_F(TableBridgeTest, aFailedCameraLeavesTheOthersChangedAndOneMessage) {
    host.faults().plant(3, "setRecordRate", {"no answer", 0, false});
    Course course(host);
    int ticksUnderBox = -1;
    desk.whileStanding = [&] {
        Course::lines.append("box");
        ticksUnderBox = ticksMeanwhile();
    };
    bridge->setFrameRate({"1", "2", "3", "5"}, "2000");

    EXPECT_EQ(Course::lines,
              (QStringList{R"([ENTER] "JS_Mediator_WrenTableDialog::setFrameRate" "[keys:1,2,3,5] [val:2000]")",
                           "update", R"([LEAVE] "JS_Mediator_WrenTableDialog::setFrameRate")", "box"}));
    EXPECT_EQ(calls(), QStringList{"ZebCameraOps::setRecordRate [[1,2,3,5],2000]"});
    ASSERT_EQ(desk.shown.size(), 1);
    EXPECT_TRUE(desk.shown.first().contains("Nozzle left"));
    for (const DOCKEY key : {1, 2, 5}) {
        EXPECT_EQ(stateOf(key, "rate").toInt(), 2000);
    }
    EXPECT_EQ(ticksUnderBox, 0);
    EXPECT_TRUE(comesATick());
}

TEST_F(TableBridgeTest, whileABoxStandsThePageIsAnsweredButChangesNothing) {
    QString records;
    Course course(host);
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
    EXPECT_EQ(desk.shown, QStringList{"Sure?"});
    EXPECT_EQ(Course::lines.filter("refused").size(), 6);
    EXPECT_FALSE(records.isEmpty());
    EXPECT_TRUE(calls().filter("setRecordRate").isEmpty());
    EXPECT_FALSE(stateOf(1, "locked").toBool());

    // The host's own command was only put off.
    EXPECT_TRUE(QTest::qWaitFor([this] { return !stateOf(2, "connected").toBool(); }));
    EXPECT_FALSE(stateOf(1, "connected").toBool());
}

TEST_F(TableBridgeTest, ticksBeginWithTheFirstCallAndStandStillInACall) {
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

TEST_F(TableBridgeTest, noTicksInFileModeNorWhileTheHostSaves) {
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

TEST_F(TableBridgeTest, aRunOfSelectionsMakesOneUpdate) {
    Course course(host);
    bridge->select({1}, true);
    bridge->select({2}, true);
    bridge->select({"1"}, false);
    EXPECT_EQ(Course::lines.count("update"), 0);
    EXPECT_EQ(bridge->getBatchDocKey(), zeb::NoDocKey);
    EXPECT_TRUE(QTest::qWaitFor([] { return Course::lines.contains("update"); }));
    EXPECT_EQ(Course::lines.count("update"), 1);
}

TEST_F(TableBridgeTest, aListThatChangesTheSelectionAsksForAnUpdate) {
    Course course(host);
    bridge->getRecords(R"({"group":"","filter":0,"tab":0})");
    EXPECT_EQ(Course::lines, QStringList{"update"});
    bridge->getRecords(R"({"group":"","filter":0,"tab":0})");
    EXPECT_EQ(Course::lines, QStringList{"update"});
}

TEST_F(TableBridgeTest, keysCrossThePageAsNumbersAndTexts) {
    QWebPage page;
    page.mainFrame()->addToJavaScriptWindowObject("bridge", bridge.get());
    const auto run = [&page](const char* script) { return page.mainFrame()->evaluateJavaScript(script); };
    change(5, {{"suspendReduce", true}});
    EXPECT_EQ(run("bridge.getBatchDocKey()").toDouble(), 4294967295.0);
    EXPECT_TRUE(run("bridge.isSuspendReduceMode(-1)").toBool());
    EXPECT_TRUE(run("bridge.isSuspendReduceMode('-1')").toBool());
    EXPECT_TRUE(run("bridge.isSuspendReduceMode('5')").toBool());
    EXPECT_FALSE(run("bridge.isSuspendReduceMode(4)").toBool());
    run("bridge.select(['2', 1], true)");
    EXPECT_EQ(calls(), (QStringList{"ZebDocManager::selectDoc [2]", "ZebDocManager::selectDoc [1]"}));
    EXPECT_EQ(run("bridge.getBatchDocKey()").toInt(), 1);
    run("bridge.connect(['2'], false)");
    EXPECT_EQ(calls(), QStringList{"ZebDocManager::disconnectDocs [[2]]"});
    run("bridge.editDoc('2')");
    EXPECT_EQ(calls(), QStringList{"ZebDocManager::editDoc [2]"});
}

TEST_F(TableBridgeTest, noFailureOfACameraLeavesASlot) {
    for (DOCKEY key = 1; key <= 8; ++key) {
        host.faults().plant(key, "*", {"no answer", 0, false});
    }
    const QMetaObject* meta = bridge->metaObject();
    const QVariantList keys{1, 2, 3};
    const QString text = "1";
    const bool on = true;
    const uint key = 1;
    int tried = 0;
    for (int i = meta->methodOffset(); i < meta->methodCount(); ++i) {
        const QMetaMethod method = meta->method(i);
        if (method.methodType() != QMetaMethod::Slot) {
            continue;
        }
        void* arguments[10] = {};
        QVariant result(method.returnType() == QMetaType::Void ? QVariant() : QVariant(method.returnType(), nullptr));
        arguments[0] = result.data();
        for (int j = 0; j < method.parameterCount(); ++j) {
            const int type = method.parameterType(j);
            arguments[j + 1] = const_cast<void*>(type == QMetaType::QVariantList ? static_cast<const void*>(&keys)
                                                 : type == QMetaType::QString    ? static_cast<const void*>(&text)
                                                 : type == QMetaType::Bool       ? static_cast<const void*>(&on)
                                                                                 : static_cast<const void*>(&key));
        }
        EXPECT_NO_THROW(QMetaObject::metacall(bridge.get(), QMetaObject::InvokeMetaMethod, i, arguments))
            << method.methodSignature().toStdString();
        EXPECT_FALSE(bridge->isInCall()) << method.methodSignature().toStdString();
        ++tried;
    }
    std::cout << "slots tried: " << tried << std::endl;
    EXPECT_GE(desk.shown.size(), 3) << "the failures were shown";
}

}  // namespace
