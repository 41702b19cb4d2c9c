#include "FaultyCall.h"
#include "GUI_ProgressDialog.h"
#include "support/FaultChoice.h"

#include <QApplication>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QMessageBox>
#include <QPushButton>
#include <QTimer>

#include <climits>
#include <functional>
#include <iostream>

// Everything that a page or the host calls, with a fault at one question or command of all that it asks.

namespace {

const QString NoAnswer = "no answer";

/// What is called, in the mode that it is for.
struct Action {
    const char* name;
    int mode;
    std::function<void(FaultyCall&)> act;
};

/// What the page asks in one cycle. Answers the rows.
QJsonArray cycle(FaultyCall& call, int tab) {
    JS_Mediator_WrenTableDialog& bridge = *call.bridge;
    bridge.isLiveMode();
    bridge.getRecStatus();
    bridge.getControlStatus();
    bridge.getTriggerTesting();
    bridge.isStopLive();
    bridge.getCurrentPartitionName();
    bridge.getPrefBool("wren/display/lock");
    bridge.getPrefString("wren/column_order/cameraInfo");
    bridge.getSyncSettings();
    const QString rows = bridge.getRecords(QStringLiteral(R"({"tab":%1})").arg(tab));
    bridge.isRecReady();
    bridge.isRecording();
    bridge.isOtherPluginOpen();
    bridge.isRecordDuringExporting();
    bridge.isSuspendReduceMode(2);
    bridge.isSuspendReduceMode(zeb::NoDocKey);
    bridge.countMdiWindow();
    bridge.getStyle();
    return QJsonDocument::fromJson(rows.toUtf8())["records"].toArray();
}

QList<Action> actions() {
    QList<Action> list;
    for (int tab = 0; tab < 7; ++tab)
        list.append({"a cycle", tab < 5 ? zeb::LiveMode : zeb::MemoryMode, [tab](FaultyCall& c) { cycle(c, tab); }});
    for (const int mode : {zeb::LiveMode, zeb::MemoryMode}) {
        list += {
            {"onOpen", mode, [](FaultyCall& c) { c.bridge->onOpen(); }},
            {"onClose", mode, [](FaultyCall& c) { c.bridge->onClose(); }},
            {"the host's disconnect", mode,
             [](FaultyCall& c) {
                 c.bridge->connect({1, 2, 3}, false, true);
             }},
            {"the lists of the page's start", mode,
             [](FaultyCall& c) {
                 c.bridge->getGroups();
                 c.bridge->getGroup();
                 c.bridge->getFilter();
                 c.bridge->getSearchAddress();
             }},
        };
    }
    list += {
        {"record", zeb::LiveMode, [](FaultyCall& c) { c.bridge->record(); }},
        {"trigger and stop", zeb::LiveMode,
         [](FaultyCall& c) {
             for (int presses = 0; presses < 3; ++presses) c.bridge->record();
         }},
        {"cancelRecord", zeb::LiveMode, [](FaultyCall& c) { c.bridge->cancelRecord(); }},
        {"setSyncSettings", zeb::LiveMode, [](FaultyCall& c) { c.bridge->setSyncSettings(); }},
        {"connectSignalDistributors", zeb::LiveMode, [](FaultyCall& c) { c.bridge->connectSignalDistributors(); }},
        {"setSignalFrequency", zeb::LiveMode, [](FaultyCall& c) { c.bridge->setSignalFrequency(1000); }},
        {"searchCamera", zeb::LiveMode, [](FaultyCall& c) { c.bridge->searchCamera("192.168.0.0"); }},
        {"discoverysearch", zeb::LiveMode, [](FaultyCall& c) { c.bridge->discoverysearch(); }},
        {"updateCamera", zeb::LiveMode, [](FaultyCall& c) { c.bridge->updateCamera(); }},
        {"stopLive", zeb::LiveMode, [](FaultyCall& c) { c.bridge->stopLive(true); }},
        {"updateLive", zeb::LiveMode, [](FaultyCall& c) { c.bridge->updateLive(); }},
        {"snapShot", zeb::LiveMode, [](FaultyCall& c) { c.bridge->snapShot(1); }},
        {"enterMemoryMode", zeb::LiveMode, [](FaultyCall& c) { c.bridge->enterMemoryMode(); }},
        {"enterLiveMode", zeb::MemoryMode, [](FaultyCall& c) { c.bridge->enterLiveMode(); }},
        {"save", zeb::MemoryMode, [](FaultyCall& c) { c.bridge->save(); }},
        {"saveLayout", zeb::MemoryMode, [](FaultyCall& c) { c.bridge->saveLayout(); }},
    };
    return list;
}

/// Hubs and cameras on a signal from outside, recordings in all; whoever reads a warning agrees.
class FaultyWorld : public FaultyCall {
public:
    explicit FaultyWorld(int mode) {
        change(4, {{"locked", false}});
        change(2, {{"lowLight", false}});
        change(5, {{"connected", true}});
        change(8, {{"connected", false}});
        for (const auto& [key, value] :
             std::initializer_list<std::pair<const char*, QVariant>>{{"wren/settings/syncInEnable", true},
                                                                     {"sync/external", true},
                                                                     {"sync/lport", 2},
                                                                     {"sync/lport/ipaddress", "192.168.0.91"},
                                                                     {"wren/display/lock", false},
                                                                     {"wren/settings/deviceSpeedPlaying", true},
                                                                     {"recording/area", true}})
            host.setPref(key, value);
        for (const Camera* camera : host.cameras().all()) {
            change(camera->key(), {{"selected", true},
                                   {"recorded", true},
                                   {"alerts", QStringList()},
                                   {"recordedRange", QVariantList{0, 999}},
                                   {"selectedRange", QVariantList{100, 900}}});
        }
        bridge->state().areas = {{1000, {0, 10}}};
        bridge->state().sync.frequency = 1000;
        host.appStatus().enterMode(mode);
        cycle(*this, firstTab());
        desk.shown.clear();
        QObject::connect(&m_user, &QTimer::timeout, [this] {
            auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
            if (box == nullptr) return;
            m_warnings.append(box->text());
            box->button(QMessageBox::Ok)->click();
        });
        m_user.start(0);
    }

    int firstTab() const { return host.isMemoryMode() ? 5 : 0; }

    /// What the user was told of the fault, boxes and notices alike.
    QStringList told() {
        QCoreApplication::sendPostedEvents();
        const QStringList texts = desk.texts() + m_warnings;
        desk.shown.clear();
        m_warnings.clear();
        return texts.filter(NoAnswer);
    }

    static QStringList standingWindows() {
        QStringList names;
        for (QWidget* window : QApplication::topLevelWidgets()) {
            if (window->isVisible()) names.append(window->metaObject()->className());
        }
        return names;
    }

private:
    QTimer m_user;
    QStringList m_warnings;
};

/// The end of a connection that has failed, of which the user is told, and the telling itself: a line in the log.
bool maySayNothing(const FaultPlan::Call& call) {
    return call.operation == "close" || call.operation == "errorHandler";
}

void expectWholeCycle(FaultyWorld& world) {
    const int tab = world.firstTab();
    for (int i = 0; i < 3; ++i) world.bridge->cycleFailures().nextCycle();
    EXPECT_EQ(cycle(world, tab).size(), world.host.docManager().getDocKeys().size());
    EXPECT_TRUE(world.bridge->cycleFailures().isEmpty());
    EXPECT_EQ(world.told(), QStringList());
}

QVector<FaultPlan::Call> callsOf(const Action& action) {
    FaultyWorld world(action.mode);
    world.host.faults().plantAt(INT_MAX, {});
    action.act(world);
    return world.host.faults().calls();
}

int tryFaults(const Action& action) {
    const QVector<FaultPlan::Call> calls = callsOf(action);
    const QList<int> numbers = callsToFail(calls);
    for (const int n : numbers) {
        const FaultPlan::Call& call = calls[n - 1];
        SCOPED_TRACE(testing::Message() << action.name << " in mode " << action.mode << ", call " << n << " of "
                                        << calls.size() << ": " << call.operation.toStdString() << " of "
                                        << (call.key == FaultPlan::Host ? -1 : int(call.key)));
        FaultyWorld world(action.mode);
        world.host.faults().plantAt(n, {NoAnswer, 0, false});
        EXPECT_NO_THROW(action.act(world));
        const QStringList told = world.told();
        EXPECT_TRUE(told.size() == 1 || (told.isEmpty() && maySayNothing(call))) << told.join('\n').toStdString();
        // Cameras are armed side by side, so that another one may have met the fault.
        if (call.key <= 8 && call.operation != "arm") {
            EXPECT_TRUE(told.join("").contains(world.host.cameras().find(call.key)->name()));
        }
        world.host.faults().clear();
        EXPECT_FALSE(world.bridge->isInCall());
        EXPECT_FALSE(world.host.liveLoop().isLivePaused());
        EXPECT_FALSE(world.host.updates().isDeterred());
        EXPECT_EQ(FaultyWorld::standingWindows(), QStringList());
        expectWholeCycle(world);
    }
    return numbers.size();
}

class FaultyActions : public testing::TestWithParam<int> {};

TEST_P(FaultyActions, FailAtAnyCallAndNothingElseDoes) {
    const Action action = actions().at(GetParam());
    const int tried = tryFaults(action);
    EXPECT_GT(tried, 0);
    std::cout << action.name << ": " << tried << " faults\n";
}

INSTANTIATE_TEST_SUITE_P(All, FaultyActions, testing::Range(0, int(actions().size())));

}  // namespace
