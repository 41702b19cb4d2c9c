#include "Camera.h"
#include "GUI_ProgressDialog.h"
#include "RigFile.h"
#include "SlotCall.h"
#include "TableFixture.h"
#include "VisibleWindows.h"
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
#include <memory>
#include <optional>
#include <random>
#include <utility>

// Everything that a page or the host calls, with a fault at one question or command of all that it asks.

namespace {

const QString NoAnswer = "no answer";

/// What each camera is set to, by its key; a camera that is gone has no entry.
using States = QMap<DOCKEY, QVariantMap>;

class FaultyWorld;

/// What is called, in the mode that it is for.
struct Action {
    std::string name;
    int mode;
    std::function<void(FaultyWorld&)> act;
};

/// What the page asks in one cycle. Answers the rows.
QJsonArray cycle(JS_Mediator_WrenTableDialog& bridge, int tab) {
    for (const char* question : {"isLiveMode", "getRecStatus", "getControlStatus", "getTriggerTesting", "isStopLive",
                                 "getCurrentPartitionName", "getSyncSettings", "isRecReady", "isRecording",
                                 "isOtherPluginOpen", "isRecordDuringExporting", "countMdiWindow", "getStyle"}) {
        EXPECT_TRUE(QMetaObject::invokeMethod(&bridge, question)) << question;
    }
    bridge.getPrefBool("wren/display/lock");
    bridge.getPrefString("wren/column_order/cameraInfo");
    for (const DOCKEY key : {DOCKEY(2), zeb::NoDocKey}) {
        bridge.isSuspendReduceMode(key);
    }
    const QString rows = bridge.getRecords(QStringLiteral(R"({"tab":%1})").arg(tab));
    return QJsonDocument::fromJson(rows.toUtf8())["records"].toArray();
}

/// Hubs and cameras on a signal from outside, recordings in all; whoever reads a warning agrees.
class FaultyWorld : public BridgeFixture {
public:
    using BridgeFixture::bridge;
    using BridgeFixture::camera;
    using BridgeFixture::change;

    /// With the cameras of the fixture, or with so many of the standard model.
    explicit FaultyWorld(int mode, int standard = 0) {
        if (standard > 0) {
            host.setRig(standardRig(standard));
        }
        connectAll();
        makeBridge();
        change(8, {{"connected", false}});
        for (const auto& [key, value] :
             std::initializer_list<std::pair<const char*, QVariant>>{{"wren/settings/syncInEnable", true},
                                                                     {"sync/external", true},
                                                                     {"sync/lport", 2},
                                                                     {"sync/lport/ipaddress", "192.168.0.91"},
                                                                     {"wren/display/lock", false},
                                                                     {"wren/settings/deviceSpeedPlaying", true},
                                                                     {"recording/area", true},
                                                                     {"wren/settings/triggerEnable", true}}) {
            host.setPref(key, value);
        }
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
        cycle(*bridge, firstTab());
        desk.shown.clear();
        QObject::connect(&m_user, &QTimer::timeout, [this] {
            auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
            if (box == nullptr) {
                return;
            }
            m_warnings.append(box->text());
            box->button(QMessageBox::Ok)->click();
        });
        m_user.start(0);
    }

    void TestBody() override {}

    /// All flags of the slot are `on`.
    void call(const QMetaMethod& method, bool on, const QVariantList& keys) {
        const QByteArray name = method.name();
        callSlot(*bridge, method,
                 {{QMetaType::QVariantList, keys},
                  {QMetaType::QString, name == "setResolution"       ? "512 x 512"
                                       : name == "setTriggerMode"    ? "3"
                                       : name == "togglePlugin"      ? "lut"
                                       : name == "setCustomSettings" ? R"([{"name":"a"},{"name":"b"}])"
                                                                     : "2000"},
                  {QMetaType::Bool, on},
                  {QMetaType::Int, on ? 50 : -50}});
    }

    States states() {
        States states;
        for (const Camera* camera : host.cameras().all()) {
            QVariantMap state = camera->state().toPlain();
            state.remove("triggerOffsetEnabled");  // it and the offset are set one after the other
            states.insert(camera->key(), state);
        }
        return states;
    }

    int firstTab() const { return host.isMemoryMode() ? 5 : 0; }

    /// What the user was told of the fault, boxes and notices alike.
    QStringList told() {
        QCoreApplication::sendPostedEvents();
        return (desk.take() + std::exchange(m_warnings, {})).filter(NoAnswer);
    }

private:
    QTimer m_user;
    QStringList m_warnings;
};

QList<QMetaMethod> slotsWithKeys() {
    QList<QMetaMethod> found;
    for (const QMetaMethod& method : slotsOf(JS_Mediator_WrenTableDialog::staticMetaObject)) {
        if (method.parameterTypes().contains("QVariantList")) {
            found.append(method);
        }
    }
    return found;
}

int modeOf(const QMetaMethod& method) {
    const QList<QByteArray> ofMemory{"setRecordCheck", "setSelectStartFrameNo", "setSelectEndFrameNo",
                                     "setTriggerOffset"};
    return ofMemory.contains(method.name()) ? zeb::MemoryMode : zeb::LiveMode;
}

/// The last one shares its device with a locked head, so that the question comes where it may.
const QVariantList Keys{1, 2, 5, 6, 3};

QList<Action> actions() {
    QList<Action> list;
    for (int tab = 0; tab < 7; ++tab) {
        list.append(
            {"a cycle", tab < 5 ? zeb::LiveMode : zeb::MemoryMode, [tab](FaultyWorld& c) { cycle(*c.bridge, tab); }});
    }
    for (const int mode : {zeb::LiveMode, zeb::MemoryMode}) {
        QList<QByteArray> plain{"onOpen", "onClose"};
        plain +=
            mode == zeb::MemoryMode
                ? QList<QByteArray>{"enterLiveMode", "save", "saveLayout"}
                : QList<QByteArray>{"record",          "cancelRecord", "setSyncSettings", "connectSignalDistributors",
                                    "discoverysearch", "updateCamera", "updateLive",      "enterMemoryMode"};
        for (const QByteArray& slot : plain) {
            list.append({slot.toStdString(), mode,
                         [slot](FaultyWorld& c) { QMetaObject::invokeMethod(c.bridge.get(), slot); }});
        }
        list += {
            {"the host's disconnect", mode, [](FaultyWorld& c) { c.bridge->connect(Keys, false, true); }},
            {"the lists of the page's start", mode,
             [](FaultyWorld& c) {
                 c.bridge->getGroups();
                 c.bridge->getGroup();
                 c.bridge->getFilter();
                 c.bridge->getSearchAddress();
             }},
        };
    }
    list += {
        {"trigger and stop", zeb::LiveMode,
         [](FaultyWorld& c) {
             for (int presses = 0; presses < 3; ++presses) {
                 c.bridge->record();
             }
         }},
        {"setSignalFrequency", zeb::LiveMode, [](FaultyWorld& c) { c.bridge->setSignalFrequency(1000); }},
        {"searchCamera", zeb::LiveMode, [](FaultyWorld& c) { c.bridge->searchCamera("192.168.0.0"); }},
        {"stopLive", zeb::LiveMode, [](FaultyWorld& c) { c.bridge->stopLive(true); }},
        {"snapShot", zeb::LiveMode, [](FaultyWorld& c) { c.bridge->snapShot(1); }},
    };
    for (const QMetaMethod& method : slotsWithKeys()) {
        for (const bool on : {true, false}) {
            list.append({method.methodSignature().toStdString() + (on ? " on" : " off"), modeOf(method),
                         [method, on](FaultyWorld& c) {
                             c.change(4, {{"locked", true}});
                             c.call(method, on, Keys);
                         }});
        }
    }
    return list;
}

/// The end of a connection that has failed, of which the user is told, and the telling itself: a line in the log. So is
/// what a mere question meets.
bool maySayNothing(const Action& action, const FaultPlan::Call& call) {
    return call.operation == "close" || call.operation == "errorHandler" || action.name.find("confirmDis") == 0;
}

/// What cameras make of these is looked at afterwards, and before for comparison. Who does not answer then is a line of
/// the result, and no message, as long as all is as it was to be.
bool isWatched(const Action& action) {
    const std::initializer_list<const char*> others{"discoverysearch", "searchCamera",     "updateCamera",
                                                    "record",          "trigger and stop", "the host's disconnect"};
    return action.name.find("(QVariantList") != std::string::npos ||
           std::find(others.begin(), others.end(), action.name) != others.end();
}

void expectWholeCycle(FaultyWorld& world) {
    const int tab = world.firstTab();
    for (int i = 0; i < 3; ++i) {
        world.bridge->cycleFailures().nextCycle();
    }
    EXPECT_EQ(cycle(*world.bridge, tab).size(), world.host.docManager().getDocKeys().size());
    EXPECT_TRUE(world.bridge->cycleFailures().isEmpty());
    EXPECT_EQ(world.told(), QStringList());
}

int tryFaults(const Action& action) {
    std::optional<FaultyWorld> whole(action.mode);
    const States before = whole->states();
    whole->host.faults().plantAt(INT_MAX, {});
    action.act(*whole);
    const QVector<FaultPlan::Call> calls = whole->host.faults().calls();
    const States after = whole->states();
    whole.reset();
    const QList<int> numbers = callsToFail(calls);
    for (const int n : numbers) {
        FaultyWorld world(action.mode);
        world.host.faults().plantAt(n, {NoAnswer, 0, false});
        EXPECT_NO_THROW(action.act(world));
        // Cameras work side by side, so that another one than before may have met the fault.
        const FaultPlan::Call call = world.host.faults().calls().value(n - 1);
        SCOPED_TRACE(testing::Message() << action.name << " in mode " << action.mode << ", call " << n << " of "
                                        << calls.size() << ": " << call.operation.toStdString() << " of "
                                        << (call.key == FaultPlan::Host ? -1 : int(call.key)));
        const QStringList told = world.told();
        const bool isNothingLost = isWatched(action) && world.states() == after;
        EXPECT_TRUE(told.size() == 1 || (told.isEmpty() && (isNothingLost || maySayNothing(action, call))))
            << told.join('\n').toStdString();
        if (call.key <= 8) {
            EXPECT_TRUE(told.join("").contains(world.host.cameras().find(call.key)->name()) || told.isEmpty());
        }
        // The mode that goes before the phase has been set by then.
        const bool isHalfSet = call.operation == "setRandomTriggerPhase";
        const States states = world.states();
        for (const QVariant& key : action.name.find("(QVariantList") != std::string::npos ? Keys : QVariantList()) {
            const QVariantMap state = states.value(key.toUInt());
            // One question about the memory decides on the trigger of all; a list of items goes from camera to camera.
            const bool isSpared = action.mode == zeb::LiveMode && call.key <= 8 && call.operation != "getFrameCount" &&
                                  action.name.find("setCustom") != 0 &&
                                  &world.camera(key.toUInt()).device() != &world.camera(call.key).device();
            EXPECT_TRUE(isHalfSet || state == after.value(key.toUInt()) ||
                        (!isSpared && state == before.value(key.toUInt())))
                << "camera " << key.toInt() << " stands as it was to be, or as it was when it may meet the fault";
        }
        world.host.faults().clear();
        EXPECT_FALSE(world.bridge->isInCall());
        EXPECT_FALSE(world.host.liveLoop().isLivePaused());
        EXPECT_FALSE(world.host.updates().isDeterred());
        EXPECT_EQ(visibleWindows(), QStringList());
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

/// What becomes of many cameras when a slot is called for all of them: the commands that each got, and its state.
struct Outcome {
    QMap<DOCKEY, int> commands;
    States states;
    QStringList told;
    QVector<FaultPlan::Call> calls;
};

constexpr DOCKEY Crowd = 64;

Outcome outcomeOf(const QMetaMethod& method, bool on, const QVector<FaultPlan::Call>& vanishing) {
    FaultyWorld world(modeOf(method), int(Crowd));
    world.host.faults().plantAt(INT_MAX, {});
    for (const FaultPlan::Call& call : vanishing) {
        world.host.faults().plant(call.key, call.operation, {{}, 0, true});
    }
    QVariantList keys;
    for (DOCKEY key = 1; key <= Crowd; ++key) {
        keys.append(key);
    }
    const quint64 mark = world.host.journal().count();
    world.call(method, on, keys);
    Outcome outcome{{}, world.states(), world.desk.texts(), world.host.faults().calls()};
    for (const QVariant& entry : world.host.journal().since(mark)) {
        const QVariant asked = entry.toMap()["args"].toList().value(0);
        if (asked.type() == QVariant::Bool) {
            continue;  // of no camera
        }
        for (const QVariant& key : asked.type() == QVariant::List ? asked.toList() : QVariantList{asked}) {
            ++outcome.commands[key.toUInt()];
        }
    }
    return outcome;
}

TEST(FaultyCrowd, TheOthersGetTheirCommandsWhenSomeVanishInTheMidstOfACall) {
    std::mt19937 random(1);
    for (const QMetaMethod& method : slotsWithKeys()) {
        for (const bool on : {true, false}) {
            SCOPED_TRACE(method.methodSignature().toStdString() + (on ? " on" : " off"));
            const Outcome whole = outcomeOf(method, on, {});
            QVector<FaultPlan::Call> vanishing;
            while (vanishing.size() < int(Crowd) / 8) {
                const FaultPlan::Call& call = whole.calls.at(int(random() % unsigned(whole.calls.size())));
                if (call.key <= Crowd) {
                    vanishing.append(call);
                }
            }
            const Outcome outcome = outcomeOf(method, on, vanishing);
            EXPECT_LT(outcome.states.size(), int(Crowd));
            for (auto state = outcome.states.begin(); state != outcome.states.end(); ++state) {
                EXPECT_EQ(state.value(), whole.states.value(state.key())) << "camera " << state.key();
                EXPECT_EQ(outcome.commands[state.key()], whole.commands[state.key()]) << "camera " << state.key();
            }
            EXPECT_EQ(outcome.told, whole.told) << "nobody is told of a camera that is gone";
        }
    }
}

}  // namespace
