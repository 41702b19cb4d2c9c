#include "CameraManagement.h"
#include "DefaultsLoad.h"
#include "GatheredFailures.h"
#include "TableFixture.h"
#include "TableState.h"

namespace {

class DefaultsLoadTest : public TableFixture {
protected:
    DefaultsLoadTest() {
        connectAll();
        const std::pair<const char*, QVariant> settings[] = {
            {"groups", "a|192.168.0.11"},
            {"triggerEnable", true},
            {"triggerMode", zeb::TriggerEnd},
            {"triggerSwInEnable", true},
            {"triggerSwIn", 17},
            {"triggerInEnable", true},
            {"triggerIn", 9},
            {"resolutionLock", true},
            {"shutterSpeedLock", true},
            {"lowlightMaxResolution", false},
        };
        for (const auto& [name, value] : settings) {
            host.setPref(QLatin1String("wren/settings/") % QLatin1String(name), value);
        }
    }

    QStringList load() {
        GatheredFailures failures;
        // Each camera's thread books its own time.
        DefaultsLoad(host, state, failures, std::chrono::milliseconds(0)).loadAll();
        return failures.lines();
    }

    /// What the load sets on a camera: "trigger mode, signals by port, resolution and shutter lock, low light type".
    QString setOn(DOCKEY key) {
        const CameraState now = camera(key).state();
        QStringList signalsAt;
        for (auto port = now.ports.begin(); port != now.ports.end(); ++port) {
            signalsAt << QString("%1:%2").arg(port.key()).arg(port.value());
        }
        return QString("%1, %2, %3%4, %5")
            .arg(now.triggerMode)
            .arg(signalsAt.join(' '))
            .arg(now.resolutionLock)
            .arg(now.shutterSpeedLock)
            .arg(now.lowLightType);
    }

    TableState state;
};

const QString Standard = "2, 1:12 2:9 5:14 7:17, 11, 3";

TEST_F(DefaultsLoadTest, GivesEachCameraWhatItHasAPlaceFor) {
    change(2, {{"lowLight", true}});
    change(6, {{"locked", true}, {"lowLight", true}});
    const QString locked = setOn(6);
    EXPECT_EQ(load(), QStringList{"Stand-in: Trigger: the trigger mode is not supported"});
    const std::pair<DOCKEY, QString> cases[] = {
        {1, Standard},
        {2, Standard},
        {3, "2, 1:12 2:9 5:15 7:17, 11, 3"},
        {4, "2, 1:12 2:9 5:15 7:17, 11, 3"},
        {5, "2, 3:9 4:2 7:17, 11, 2"},
        {6, locked},
        {7, "2, 1:12 5:14 7:17 10:9, 11, 3"},
        {8, "0, , 11, 2"},
    };
    for (const auto& [key, set] : cases) {
        EXPECT_EQ(setOn(key), set) << key;
        EXPECT_EQ(stateOf(key, "lowLight").toBool(), key == 2 || key == 6) << key;
    }
    EXPECT_EQ(calls("setLowLightMode").size(), 4) << "off and on again, the locked one too";
}

TEST_F(DefaultsLoadTest, AFaultAtAnyCallIsThatOfOneCamera) {
    for (const Fault& fault : {Fault{"no answer"}, Fault{{}, 0, true}}) {
        for (int call = 1, count = 1; call <= count; ++call) {
            host.setRig(connected(2));
            change(1, {{"lowLight", true}});
            change(2, {{"lowLight", true}});
            const QStringList names{"", camera(1).name(), camera(2).name()};
            state = {};
            host.faults().plantAt(call, fault);
            const QStringList told = load();
            count = host.faults().calls().size();
            const FaultPlan::Call hit = host.faults().calls().value(call - 1);
            SCOPED_TRACE(std::to_string(hit.key) + ' ' + hit.operation.toStdString() + ", " +
                         fault.throws.toStdString());
            const bool isHost = hit.key == FaultPlan::Host;
            for (const DOCKEY key : host.cameras().keys()) {
                EXPECT_TRUE(stateOf(key, "lowLight").toBool() ||
                            (hit.key == key && hit.operation.contains("LowLightMode")));
                EXPECT_TRUE(isHost || hit.key == key || setOn(key) == Standard) << setOn(key).toStdString();
            }
            EXPECT_TRUE(isHost || state.groups.size() == 1);
            EXPECT_EQ(told.size(), fault.throws.isEmpty() ? 0 : 1) << told.join('/').toStdString();
            EXPECT_TRUE(isHost || told.isEmpty() || told.first().startsWith(names[int(hit.key)] + ": "))
                << told.join('/').toStdString();
        }
    }
    EXPECT_EQ(desk.take(), QStringList()) << "no box stands meanwhile";
}

TEST_F(DefaultsLoadTest, TakesAsLongAsTheSlowestAndADeadCameraItsTimeOutOnce) {
    host.setRig(connected(64));
    host.faults().plant(2, "*", {"no answer", 700});
    host.faults().plant(5, "setPortSignal", {{}, 400});
    clock.join();
    EXPECT_EQ(load(), QStringList{"Camera 2: State of the camera: no answer"});
    EXPECT_LE(clock.join(), 700 + 2 * 400 + 100);
    EXPECT_EQ(setOn(64), Standard);

    host.faults().clear();
    host.setPrefInt("wren/settings/triggerMode", zeb::TriggerRandom);
    for (const char* command : {"setTriggerMode", "setRandomTriggerPhase", "setPortSignal"}) {
        host.faults().plant(2, command, {"no answer", 700});
    }
    EXPECT_EQ(load(), QStringList{"Camera 2: Trigger: no answer"});
    EXPECT_LE(clock.join(), 700 + 100);
}

TEST_F(DefaultsLoadTest, IsForWhoeverJoins) {
    CameraManagement cameras(host, state);
    change(3, {{"connected", false}});
    change(4, {{"connected", false}});
    cameras.connect({3}, true, false);
    for (const DOCKEY key : {3, 4}) {
        EXPECT_EQ(setOn(key), "2, 1:12 2:9 5:15 7:17, 11, 3") << "the other head of the device comes along";
    }
    EXPECT_NE(setOn(1), Standard) << "it was there before";
    EXPECT_TRUE(state.groups.isEmpty()) << "the table stays as it is";

    calls();
    cameras.searchCamera("192.168.7.1");
    EXPECT_EQ(calls("DOC_"), QStringList()) << "found, and not connected";

    change(1, {{"connected", false}});
    change(2, {{"connected", false}, {"recordState", zeb::RecordReady}});
    cameras.connect({1, 2}, true, false);
    EXPECT_NE(setOn(1), Standard) << "together with one that is ready";
}

}  // namespace
