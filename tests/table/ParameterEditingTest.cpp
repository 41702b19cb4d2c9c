#include "DocKeys.h"
#include "ParameterEditing.h"
#include "TableFixture.h"

namespace {

class ParameterEditingTest : public TableFixture {
protected:
    ParameterEditingTest() { connectAll(); }

    ParameterEditing editing{host};
};

TEST_F(ParameterEditingTest, oneCallReachesEveryCameraThatMayBeChanged) {
    change(2, {{"locked", true}});
    change(5, {{"connected", false}});
    host.faults().plant(6, "*", {{}, 0, true});
    editing.setFrameRate({7, 2, 5, 6, 1, 99}, "2000");
    EXPECT_EQ(calls(), QStringList{"ZebCameraOps::setRecordRate [[7,1],2000]"});
    EXPECT_EQ(stateOf(1, "rate").toInt(), 2000);
}

TEST_F(ParameterEditingTest, nothingIsAskedOrChangedWhereNothingMayBe) {
    change(2, {{"locked", true}});
    editing.setFrameRate({2}, "2000");
    editing.setFrameRate({}, "2000");
    editing.setFrameRate({1}, "");
    host.appStatus().enterMemoryMode();
    calls();
    editing.setFrameRate({1}, "2000");
    editing.setParamLock({1}, true);
    EXPECT_EQ(calls(), QStringList());
    EXPECT_EQ(desk.shown, QStringList());
}

TEST_F(ParameterEditingTest, asksBeforeALockedHeadOfTheDeviceIsChanged) {
    change(4, {{"locked", true}});
    const QString question =
        "Shooting speed of locked heads will be changed at the same time.\nDo you want to continue?";

    desk.answers = {false};
    editing.setFrameRate({1, 3}, "2000");
    EXPECT_EQ(desk.shown, QStringList{question});
    EXPECT_EQ(calls(), QStringList()) << "declined: no camera of the batch changes";

    editing.setFrameRate({1, 3}, "2000");
    EXPECT_EQ(calls(), QStringList{"ZebCameraOps::setRecordRate [[1,3],2000]"});

    desk.shown.clear();
    editing.setFrameRate({3, 1}, "1000");
    EXPECT_EQ(desk.shown, QStringList()) << "the last head of the list decides";
    host.setPrefBool("alert/wren/multiheadlockalert", false);
    editing.setFrameRate({1, 3}, "1000");
    EXPECT_EQ(desk.shown, QStringList()) << "the user wants no question";
}

TEST_F(ParameterEditingTest, looksAgainAfterTheQuestion) {
    change(4, {{"locked", true}});
    desk.whileStanding = [this] {
        host.faults().plant(1, "*", {{}, 0, true});
        change(2, {{"locked", true}});
    };
    editing.setFrameRate({1, 2, 5, 3}, "500");
    EXPECT_EQ(calls(), QStringList{"ZebCameraOps::setRecordRate [[5,3],500]"});

    desk.whileStanding = [this] { host.appStatus().enterMode(zeb::MemoryMode); };
    editing.setFrameRate({3}, "250");
    EXPECT_EQ(calls(), QStringList());
}

TEST_F(ParameterEditingTest, locksWhatIsConnectedAndNotInLowLight) {
    change(2, {{"lowLight", true}});
    change(3, {{"connected", false}});
    editing.setParamLock({1, 2, 3, 99}, true);
    EXPECT_EQ(calls(), QStringList{"DOC_Lock::setParamLock [1,true]"});
}

TEST_F(ParameterEditingTest, readsKeysAsAPageHandsThemOver) {
    EXPECT_EQ(toDocKeys({"3", 5, 7.0, "", "x", -1, "-1", QVariant()}), (DocKeyList{3, 5, 7}));
}

}  // namespace
