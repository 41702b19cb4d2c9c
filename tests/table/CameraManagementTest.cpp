#include "CameraManagement.h"
#include "RigFile.h"
#include "TableFixture.h"
#include "TableSession.h"
#include "TableState.h"

namespace {

/// The live loop stands still while the default settings are brought to who comes in.
const QString Commands = "^(?!.*(Live$|deterUpdateUI))";

class CameraManagementTest : public TableFixture {
protected:
    TableState state;
    CameraManagement cameras{host, state};
};

TEST_F(CameraManagementTest, FollowsACameraThatComesInWhileItRecords) {
    change(1, {{"recordState", zeb::RecordReady}});
    change(2, {{"recordState", zeb::RecordCtsReady}});
    cameras.connect({1, 2}, true, false);
    EXPECT_TRUE(state.recordRunning);
    EXPECT_EQ(calls(Commands), (QStringList{"connectDocs 1,2", "setParamLock 1 true"}));
    EXPECT_TRUE(stateOf(1, "locked").toBool());

    host.setPrefBool("wren/display/lock", false);
    change(1, {{"connected", false}});
    state.recordRunning = false;
    calls();
    cameras.connect({1}, true, false);
    EXPECT_TRUE(state.recordRunning);
    EXPECT_EQ(calls(Commands), (QStringList{"connectDocs 1"})) << "without the lock column no lock";
}

TEST_F(CameraManagementTest, AsksBeforeDisconnectingByWhatGoesWithIt) {
    connectAll();
    change(2, {{"locked", true}});
    change(6, {{"connected", false}});
    const std::pair<DocKeyList, QString> cases[] = {
        {{1}, "Disconnect this device. Is it OK?"},
        {{1, 2}, "Disconnect this device. Is it OK?"},
        {{1, 6, 99}, "Disconnect this device. Is it OK?"},
        {{1, 5}, "Bulk disconnect devices. Is it OK?"},
        {{1, 5, 4}, "Heads connected to the same device are also disconnected. Is it OK?"},
    };
    for (const auto& [keys, question] : cases) {
        desk.answers = {{false, false}};
        EXPECT_FALSE(cameras.confirmDisconnect(keys));
        EXPECT_EQ(desk.take(), QStringList{question});
    }
    EXPECT_TRUE(cameras.confirmDisconnect({1}));

    change(4, {{"locked", true}});
    cameras.confirmDisconnect({4});
    EXPECT_EQ(desk.take().last(), cases[4].second) << "a locked head counts too";
    host.faults().plant(1, "isParamLocked", {"no answer", 0, false});
    EXPECT_TRUE(cameras.confirmDisconnect({1, 5}));
    EXPECT_EQ(desk.take(), QStringList{cases[0].second}) << "of those that tell";
    host.appStatus().enterMemoryMode();
    EXPECT_FALSE(cameras.confirmDisconnect({5}));
    EXPECT_EQ(desk.texts(), QStringList());
}

TEST_F(CameraManagementTest, SelectionSetsTheCameraBehindTheBatchRow) {
    for (const DOCKEY key : {1, 2, 3}) {
        change(key, {{"connected", true}});
    }
    change(2, {{"selected", true}});
    change(3, {{"recordState", zeb::RecordReady}});
    calls();
    EXPECT_TRUE(cameras.select({1, 2, 3, 5}, true));
    EXPECT_EQ(calls(), QStringList{"selectDoc 1"});
    EXPECT_EQ(state.batchDocKey, 2U);

    cameras.select({1}, false);
    EXPECT_EQ(calls(), QStringList{"deselectDoc 1"});
    EXPECT_EQ(state.batchDocKey, zeb::NoDocKey);

    host.appStatus().enterMode(zeb::FileMode);
    EXPECT_FALSE(cameras.select({1}, true));
    host.appStatus().enterLiveMode();
    host.flags().set("IsApplicationClosing", true);
    EXPECT_FALSE(cameras.select({1}, true));
}

TEST_F(CameraManagementTest, ASearchBringsCamerasThatAreNew) {
    host.setRig(readRig(":/table/rigs/recording-elsewhere.json"));
    calls();
    EXPECT_EQ(host.docManager().getDocKeys(), DocKeyList{1});

    cameras.searchCamera("192.168.0.0");
    EXPECT_EQ(host.docManager().getDocKeys(), (DocKeyList{1, 2}));
    EXPECT_EQ(calls(Commands), (QStringList{"setPref cameraconnection/SearchIP 192.168.0.0", "searchCamera 192.168.0.0",
                                            "setParamLock 2 true"}))
        << "a camera that records already is followed and locked";
    EXPECT_TRUE(state.recordRunning);
    EXPECT_EQ(desk.take(), QStringList{"Search in 192.168.0.xxx: found There."});

    cameras.searchCamera("");
    host.appStatus().enterMemoryMode();
    calls();
    cameras.searchCamera("192.168.0.0");
    cameras.discover();
    cameras.update();
    cameras.deleteAll();
    EXPECT_EQ(calls(), QStringList());
    EXPECT_EQ(desk.texts(), QStringList());
}

TEST_F(CameraManagementTest, AllCamerasGoWhileTheHostStaysInLiveMode) {
    connectAll();
    desk.whileStanding = [this] { host.appStatus().enterMode(zeb::MemoryMode); };
    cameras.deleteAll();
    EXPECT_EQ(host.docManager().getDocKeys().size(), 8) << "the mode is another by now";
    host.appStatus().enterMode(zeb::LiveMode);
    cameras.deleteAll();
    EXPECT_TRUE(host.docManager().getDocKeys().isEmpty());
    EXPECT_EQ(desk.texts().count("Delete all Cameras?"), 2);
}

TEST_F(CameraManagementTest, ASessionTakesBackWhatItSet) {
    connectAll();
    change(1, {{"locked", true}});
    change(2, {{"locked", true}, {"recordState", zeb::RecordRecording}});
    change(3, {{"recordCheck", true}, {"locked", true}, {"recordState", zeb::RecordReady}});
    state.filter = 2;
    host.setPrefBool("wren/display/lock", false);
    TableSession session(host, state);

    session.open(nullptr);
    EXPECT_EQ(state.group, QLatin1String(UnreadGroup));
    EXPECT_FALSE(stateOf(1, "locked").toBool());
    EXPECT_TRUE(stateOf(2, "locked").toBool() && stateOf(3, "locked").toBool())
        << "a head that records or is ready keeps its lock";
    EXPECT_FALSE(stateOf(3, "recordCheck").toBool());
    EXPECT_TRUE(state.recordRunning);
    EXPECT_TRUE(host.getPrefBool("recording/RecAllConnectedCamera"));

    session.open(nullptr);  // a minimised table is restored
    change(2, {{"recordState", 0}});
    state.group = QStringLiteral("Front");
    session.close();
    EXPECT_FALSE(host.getPrefBool("recording/RecAllConnectedCamera")) << "as before the first opening";
    EXPECT_FALSE(stateOf(2, "locked").toBool());
    EXPECT_EQ(host.getPrefInt("wren/table/filter"), 2);
    EXPECT_EQ(host.getPrefString("wren/table/group"), "Front");
}

}  // namespace
