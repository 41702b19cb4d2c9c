#include "DocKeys.h"
#include "ParameterEditing.h"
#include "RigFile.h"
#include "TableFixture.h"
#include "TriggerEditing.h"

namespace {

class ParameterEditingTest : public TableFixture {
protected:
    ParameterEditingTest() { connectAll(); }

    /// Whether a camera refuses what `change` asks of it.
    static bool refused(const std::function<void()>& change) { return !thrownBy(change).empty(); }
    /// Takes the trigger's parameters from the default settings; a random trigger has more frames than a camera of
    /// 1024 x 1024 holds.
    void storeTrigger() {
        host.setPref("wren/settings/triggerEnable", true);
        host.setPref("wren/settings/triggerManualBeforePer", 25.0F);
        host.setPref("wren/settings/triggerRandomTriggerTimes", 10);
        host.setPref("wren/settings/triggerRandomFrame", 1000);
        calls();
    }

    AllowedValues allowed;
    ParameterEditing editing{host, allowed};
    TriggerEditing triggers{host};
};

TEST_F(ParameterEditingTest, AsksBeforeALockedHeadOfTheDeviceIsChanged) {
    change(4, {{"locked", true}});
    const QString question =
        "Shooting speed of locked heads will be changed at the same time.\nDo you want to continue?";

    desk.answers = {{false, false}};
    editing.setFrameRate({1, 3}, "2000");
    EXPECT_EQ(desk.take(), QStringList{question});
    EXPECT_EQ(calls(), QStringList()) << "declined: no camera of the batch changes";

    editing.setFrameRate({1, 3}, "2000");
    EXPECT_EQ(calls(), QStringList{"setRecordRate 1,3 2000"});
    EXPECT_EQ(desk.take(), QStringList{question});

    editing.setFrameRate({3, 1}, "1000");
    EXPECT_EQ(desk.texts(), QStringList()) << "the last head of the list decides";
    host.setPrefBool("alert/wren/multiheadlockalert", false);
    editing.setFrameRate({1, 3}, "1000");
    EXPECT_EQ(desk.texts(), QStringList()) << "the user wants no question";
}

TEST_F(ParameterEditingTest, LooksAgainAfterTheQuestion) {
    change(4, {{"locked", true}});
    desk.whileStanding = [this] {
        host.faults().plant(1, "*", {{}, 0, true});
        change(2, {{"locked", true}});
    };
    editing.setFrameRate({1, 2, 5, 3}, "500");
    EXPECT_EQ(calls(), QStringList{"setRecordRate 5,3 500"});

    desk.whileStanding = [this] { host.appStatus().enterMode(zeb::MemoryMode); };
    editing.setFrameRate({3}, "250");
    EXPECT_EQ(calls(), QStringList());
}

TEST_F(ParameterEditingTest, AsksForEachParameterInItsOwnWay) {
    const auto shutter = [this](const DocKeyList& keys) { editing.setShutterSpeed(keys, "2000"); };
    const auto size = [this](const DocKeyList& keys) { editing.setResolution(keys, "640 x 400"); };
    const auto trigger = [&](const DocKeyList& keys) { triggers.setTriggerMode(keys, "1"); };
    const QString shared = ":/table/rigs/shared-shutter.json";
    const struct {
        const char* told;
        QString rig;
        std::function<void(const DocKeyList&)> set;
        DocKeyList keys;
        QString label;
    } cases[] = {
        {"heads share their resolution", "eight-mixed", size, {3}, "Resolution"},
        {"the last head of the list decides on the resolution", "eight-mixed", size, {3, 1}, {}},
        {"heads of this model have a shutter each", "eight-mixed", shutter, {3}, {}},
        {"one head that shares its shutter is enough", shared, shutter, {3, 1}, "Shutter speed"},
        {"the trigger asks too", "eight-mixed", trigger, {3}, "Trigger mode"},
    };
    for (const auto& each : cases) {
        host.setRig(readRig(each.rig));
        connectAll();
        change(4, {{"locked", true}});
        host.setPrefBool("wren/settings/triggerEnable", true);
        calls();
        refused([&] { each.set(each.keys); });
        const QString question = " of locked heads will be changed at the same time.\nDo you want to continue?";
        EXPECT_EQ(desk.take(), each.label.isEmpty() ? QStringList() : QStringList(each.label + question)) << each.told;
        EXPECT_EQ(calls("ZebCameraOps").size(), 1) << each.told;
    }
}

TEST_F(ParameterEditingTest, SendsAShutterSpeedAsAFraction) {
    editing.setShutterSpeed({1, 2}, "5000");
    EXPECT_EQ(calls(), QStringList{"setShutterSpeed 1,2 5000"});

    host.setPrefInt("display/ShutterSpeed", 2);
    calls();
    editing.setShutterSpeed({1}, "200000");
    EXPECT_EQ(calls(), QStringList{"setShutterSpeed 1 5000"}) << "200,000 ns";
    EXPECT_EQ(stateOf(1, "shutter").toInt(), 5000);

    // Camera 7 alone offers 1/1,000,000 second, and 1/3 second is nowhere but in the default settings.
    allowed.shutterSpeeds = QStringList{"x", "0", "3"};
    const struct {
        const char* what;
        DOCKEY current;
        DocKeyList keys;
        const char* value;
        QString sent;
    } cases[] = {
        {"one that does not offer it", 1, {1}, "1000", {}},
        {"another of the batch offers it", 1, {1, 2, 7}, "1000", "1,2,7 1000000"},
        {"the current one offers it, whoever is set", 7, {1, 2}, "1000", "1,2 1000000"},
        {"the default settings do", 1, {1, 2}, "333333333", "1,2 3"},
        {"nobody does", 1, {1, 2}, "1001", {}},
        {"no time at all", 1, {1, 2}, "0", {}},
    };
    for (const auto& c : cases) {
        for (const DOCKEY key : {1U, 7U}) {
            change(key, {{"selected", key == c.current}});
        }
        calls();
        const bool isRefused = refused([&] { editing.setShutterSpeed(c.keys, c.value); });
        EXPECT_EQ(calls().filter("setShutterSpeed").join("").section(' ', 1), c.sent) << c.what;
        EXPECT_TRUE(isRefused || !c.sent.isEmpty()) << c.what << ": it is told";
    }
}

TEST_F(ParameterEditingTest, NoKeysAreAllConnectedCamerasWhereThatIsMeant) {
    change(2, {{"locked", true}});
    change(5, {{"connected", false}});
    EXPECT_TRUE(refused([this] { editing.setLowLight({}, true); })) << "it is the camera that has no such mode";
    EXPECT_TRUE(stateOf(7, "lowLight").toBool()) << "the others have it";
    EXPECT_EQ(calls().filter("setLowLight"), QStringList{"setLowLight 1,3,4,6,7,8 true"});
    refused([this] { editing.setReduceMode({}, true); });
    EXPECT_EQ(calls().filter("setReduceMode"), QStringList{"setReduceMode 1,3,4,6,7,8 true"});
    EXPECT_FALSE(host.liveLoop().isLivePaused());
    editing.setLowLightType({}, true);
    editing.setFrameRate({}, "500");
    editing.setFrameRate({1}, "");
    EXPECT_EQ(calls(), QStringList());
    EXPECT_EQ(desk.texts(), QStringList());
}

TEST_F(ParameterEditingTest, SetsTheTriggerWithTheParametersOfTheHost) {
    host.setPref("trigger/manualBeforePercent", 30.0);
    host.setPref("trigger/randomTimes", 0);
    calls();
    change(4, {{"locked", true}});
    triggers.setTriggerMode({1, 3}, "4");
    EXPECT_EQ(desk.texts(), QStringList()) << "no question about the locked head of the device";
    EXPECT_EQ(calls(), QStringList{"setTriggerMode 1,3 1 4 0 0 30 100 0"});
    EXPECT_EQ(stateOf(1, "triggerMode").toInt(), 4);
    triggers.setTriggerMode({1}, "3");
    EXPECT_EQ(calls(), (QStringList{"setTriggerMode 1 1 3 0 0 30 100 0", "setRandomTriggerPhase 1 false",
                                    "setTriggerMode 1 1 3 0 0 30 100 0"}));
}

TEST_F(ParameterEditingTest, ACameraThatRefusesTheTriggerHidesNoOtherThatIsTooSmall) {
    storeTrigger();
    change(2, {{"lowLight", true}, {"resolution", QVariantList{512, 512}}});
    EXPECT_TRUE(refused([&] { triggers.setTriggerMode({1, 2}, "3"); }));
    EXPECT_EQ(desk.texts(), QStringList{"Gate・・Trigger Parameter is invalid."}) << "told all the same";
}

TEST_F(ParameterEditingTest, NamesTheCamerasWhoseMemoryIsTooSmallForTheTrigger) {
    storeTrigger();
    change(2, {{"resolution", QVariantList{512, 512}}});
    triggers.setTriggerMode({1, 2, 6}, "3");
    EXPECT_EQ(desk.take(),
              QStringList{"Gate・・Trigger Parameter is invalid.\nTrack・・Trigger Parameter is invalid."});
    EXPECT_EQ(calls("ZebCameraOps"), (QStringList{"setTriggerMode 2 2 3 0 0 25 1000 10", "setRandomTriggerPhase 2 true",
                                                  "setTriggerMode 2 2 3 0 0 25 1000 10"}));

    triggers.setTriggerMode({1}, "13");
    EXPECT_EQ(desk.texts(), QStringList()) << "recording on command takes any number";
    EXPECT_EQ(calls(), QStringList{"setTriggerMode 1 2 13 0 0 25 1000 10"});
    triggers.setTriggerMode({1}, "2");
    EXPECT_EQ(calls(), QStringList{"setTriggerMode 1 2 2 0 0 25 1000 10"});
}

TEST_F(ParameterEditingTest, ReadsKeysAsAPageHandsThemOver) {
    EXPECT_EQ(toDocKeys({"3", 5, 7.0, "", "x", -1, "-1", "4294967297", 4294967297.0, QVariant()}),
              (DocKeyList{3, 5, 7}));
}

}  // namespace
