#include "TableFixture.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

namespace {

/// Keys: 1 Gate, 2 Ramp, 3 and 4 the heads of one device, 5 Roof, 6 Track, 7 Impact, 8 Stand-in.
class TableActions : public BridgeFixture {
protected:
    TableActions() {
        makeBridge();
        connectAll();
        for (DOCKEY key = 1; key <= 8; ++key) {
            change(key, {{"locked", false}, {"lowLight", false}});
        }
        desk.take();
        calls();
    }

    QJsonObject status() { return QJsonDocument::fromJson(bridge->getTableStatus().toUtf8()).object(); }
    QJsonObject result() { return status()["result"].toObject(); }
    /// Its lines, as "8 clamped: 2000 fps, 1000 fps, why".
    QStringList lines() {
        QStringList lines;
        const QJsonArray rows = result()["rows"].toArray();
        for (const auto& value : rows) {
            const QJsonObject row = value.toObject();
            lines << QString("%1 %2: %3, %4, %5")
                         .arg(row["key"].toString(), row["verdict"].toString(), row["asked"].toString(),
                              row["got"].toString(), row["reason"].toString());
        }
        return lines;
    }
};

TEST_F(TableActions, TellWhatEachCameraMadeOfThem) {
    EXPECT_TRUE(status()["result"].isNull());
    change(2, {{"rate", 500}, {"locked", true}});
    host.faults().plant(3, "setRecordRate", {"busy"});
    host.faults().plant(5, "setRecordRate", {"busy"});
    host.faults().plant(6, "setRecordRate", {{}, 0, true});
    host.faults().plant(7, "setRecordRate", {{}, 3000, false});
    change(8, {{"rate", 500}, {"shutter", 500}});
    change(1, {{"rate", 500}, {"shutter", 500}});
    bridge->setFrameRate({1, 2, 3, 4, 5, 6, 7, 8}, "2000");
    EXPECT_EQ(desk.take().size(), 1);
    EXPECT_EQ(calls("setRecordRate"), QStringList("setRecordRate 1,3,4,5,6,7,8 2000"));
    EXPECT_EQ(result()["action"].toString(), "frameRate");
    EXPECT_FALSE(result()["ok"].toBool());
    EXPECT_EQ(
        lines(),
        QStringList({"1 set: 2000 fps, 2000 fps, Shutter speed 1/500 sec → 1/2000 sec", "2 locked: 2000 fps, 500 fps, ",
                     "3 set: 2000 fps, 2000 fps, busy; Shutter speed 1/500 sec → 1/2000 sec",
                     "4 set: 2000 fps, 2000 fps, Shutter speed 1/500 sec → 1/2000 sec",
                     "5 refused: 2000 fps, 500 fps, busy", "6 gone: 2000 fps, , ", "7 set: 2000 fps, 2000 fps, ",
                     "8 clamped: 2000 fps, 1000 fps, Shutter speed 1/500 sec → 1/1000 sec"}));

    // Each has its own values back, and those that moved along.
    host.faults().clear();
    EXPECT_EQ(host.undo().undo(), "Frame rate 2000 fps");
    EXPECT_EQ(stateOf(1, "rate").toUInt(), 500U);
    EXPECT_EQ(stateOf(1, "shutter").toInt(), 500);
    EXPECT_EQ(stateOf(8, "shutter").toInt(), 500);
    EXPECT_EQ(host.undo().redo(), "Frame rate 2000 fps");
    EXPECT_EQ(stateOf(3, "rate").toUInt(), 2000U);
}

TEST_F(TableActions, AreOneStepOfTheHostEachAndNoneWhereNothingIsSent) {
    const struct {
        std::function<void()> act;
        QString step;
    } cases[] = {
        {[this] { bridge->setShutterSpeed({1}, "2000"); }, "Shutter speed 1/2000 sec"},
        {[this] { bridge->setResolution({1}, "512 x 256"); }, "Resolution 512 x 256"},
        {[this] { bridge->setTriggerMode({1}, "2"); }, "Trigger mode End Trg"},
        {[this] { bridge->setReduceMode({1}, true); }, "Live speed ON"},
        {[this] { bridge->setLowLight({1}, true); }, "Lowlight ON"},
    };
    for (const auto& each : cases) {
        each.act();
        EXPECT_EQ(host.undo().undoText(), each.step);
        EXPECT_EQ(calls("^ZebUndo").size(), 2);
        EXPECT_EQ(lines().size(), 1);
        EXPECT_TRUE(result()["ok"].toBool()) << lines().join("").toStdString();
    }
    change(1, {{"lowLight", false}, {"locked", true}});
    bridge->setFrameRate({1}, "250");
    EXPECT_EQ(calls("^ZebUndo"), QStringList()) << "there is nobody to ask";
    EXPECT_EQ(lines(), QStringList("1 locked: 250 fps, 1000 fps, "));

    change(4, {{"locked", true}});
    const QStringList before = lines();
    desk.answers = {{false, false}};
    bridge->setFrameRate({3}, "250");
    EXPECT_EQ(calls("^ZebUndo"), QStringList()) << "the user has declined";
    EXPECT_EQ(lines(), before);

    host.faults().plant(FaultPlan::Host, "endMacro", {"no answer"});
    bridge->setFrameRate({5}, "250");
    host.faults().clear();
    EXPECT_EQ(host.undo().undoText(), "Frame rate 250 fps") << "it is closed all the same";
    EXPECT_EQ(desk.take().size(), 1) << "the question";
}

TEST_F(TableActions, OfOtherKindsTellTheirCamerasToo) {
    change(2, {{"lowLight", true}});
    bridge->lockAll(true);
    EXPECT_EQ(lines().at(1), "2 refused: ON, OFF, it is in low light mode");
    EXPECT_EQ(status()["locked"].toInt(), 7);
    bridge->record();
    EXPECT_EQ(desk.take().size(), 1);
    EXPECT_EQ(result()["action"].toString(), "record");
    EXPECT_EQ(lines(), QStringList("2 refused: ON, OFF, it is in low light mode"));
    bridge->lockAll(false);
    EXPECT_EQ(status()["locked"].toInt(), 0);
    bridge->connect({1, 3}, false);
    EXPECT_EQ(lines(), QStringList({"1 set: OFF, OFF, ", "3 set: OFF, OFF, "}));
    host.faults().plant(1, "connectDocs", {"no answer"});
    bridge->connect({1, 3}, true);
    EXPECT_EQ(lines().first(), "1 refused: ON, OFF, ") << "the host tells the reason itself";
    host.faults().clear();
    desk.take();
    bridge->setComment({2, 5}, "left\nright");
    EXPECT_EQ(lines().first(), "2 set: left\nright, left\nright, ");
    EXPECT_EQ(status()["found"].toInt(), 8);
    EXPECT_EQ(status()["connected"].toInt(), 7);
    EXPECT_EQ(status()["armed"].toInt(), 0);
    EXPECT_EQ(status()["recordMs"].toInt(), -1);
    bridge->searchCamera("192.168.0.0");
    EXPECT_EQ(status()["search"].toString(), "192.168.0.xxx: new 1, in the list 9");
    EXPECT_EQ(lines().size(), 1);
}

TEST_F(TableActions, NameACameraThatDoesNotEvenTellWhetherItIsConnected) {
    host.faults().plant(5, "isConnected", {"no answer"});
    bridge->setFrameRate({1, 5}, "2000");
    EXPECT_EQ(desk.take().size(), 1);
    EXPECT_EQ(lines().size(), 2);
    EXPECT_EQ(lines().last().section(':', 0, 0), "5 unanswered");
}

TEST_F(TableActions, OnWhatIsRecordedTellWhatTheFramesAllow) {
    for (const DOCKEY key : {1, 5}) {
        change(key, {{"recorded", true}, {"recordedRange", QVariantList{0, 99}}, {"recordedTrigger", 50}});
    }
    host.appStatus().enterMode(zeb::MemoryMode);
    change(2, {{"recorded", false}});
    bridge->setSelectStartFrameNo({1, 2, 5}, -500);
    EXPECT_EQ(lines(), QStringList({"1 clamped: -500, -50, ", "5 clamped: -500, -50, "})) << "2 has no frames";
    bridge->setTriggerOffset({1}, 10);
    EXPECT_EQ(lines(), QStringList("1 set: 10, 10, "));
    change(1, {{"locked", true}});
    bridge->setFrameRate({1}, "250");
    bridge->connect({1}, false);
    EXPECT_EQ(lines(), QStringList("1 set: 10, 10, ")) << "it is nothing of this mode";
    host.faults().plant(1, "setCameraName", {"no answer"});
    bridge->setCameraName({1}, "Gate 1");
    EXPECT_EQ(lines(), QStringList("1 refused: Gate 1, Gate, no answer")) << "here the lock keeps no name";
}

}  // namespace
