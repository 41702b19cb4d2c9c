#include "Rig.h"
#include "TableFixture.h"
#include "VisibleWindows.h"

#include <QApplication>
#include <QMessageBox>
#include <QPushButton>
#include <QRegularExpression>
#include <QTimer>

#include <functional>

namespace {

const QStringList Armed{"startRecReady"};

/// Four connected cameras: two alone, and one with two heads, of which the second has the first for its device.
class RecordingTest : public BridgeFixture {
protected:
    RecordingTest() {
        host.setPrefBool("wren/display/lock", false);
        makeBridge();
        connectAll();
        for (const DOCKEY key : {1, 2, 3, 4}) {
            change(key, {{"alerts", QStringList()}, {"locked", false}});
        }
        for (const DOCKEY key : {5, 6, 7, 8}) {
            change(key, {{"connected", false}});
        }
        calls();
    }

    /// What the recorder is asked to do.
    QStringList press() {
        calls();
        bridge->record();
        return calls("ZebRecorder");
    }

    void setState(int state) {
        const char* const flags[] = {"IsCTSReady", "IsReady", "IsRecording", "IsRecordingError"};
        for (int i = 1; i <= 4; ++i) {
            host.flags().set(flags[i - 1], i == state);
        }
    }

    /// The user reads the warning that comes, and says yes or no.
    void answerWarning(
        bool yes, const std::function<void()>& meanwhile = [] {}) {
        QTimer::singleShot(0, qApp, [this, yes, meanwhile] {
            auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
            ASSERT_TRUE(box) << "no warning";
            warning = box->text();
            EXPECT_EQ(box->button(QMessageBox::Ok)->text(), "Yes");
            EXPECT_EQ(box->button(QMessageBox::Cancel)->text(), "No");
            meanwhile();
            box->button(yes ? QMessageBox::Ok : QMessageBox::Cancel)->click();
        });
    }

    QString warning;
};

TEST_F(RecordingTest, TheButtonArmsTriggersOrStopsByTheState) {
    host.setPrefBool("wren/display/lock", true);  // what is no start skips every check
    const struct {
        int state;
        QStringList pressed;
        QStringList cancelled;
    } cases[] = {
        {zeb::RecordLive, {}, {"cancelRecording false"}},
        {zeb::RecordCtsReady, {}, {"cancelRecording false"}},
        {zeb::RecordReady, {"triggerRecording"}, {"cancelRecording false"}},
        {zeb::RecordRecording, {"stopRecording"}, {"cancelRecording true"}},
        {zeb::RecordError, {}, {"cancelRecording false"}},
    };
    for (const auto& each : cases) {
        SCOPED_TRACE(each.state);
        setState(each.state);
        EXPECT_EQ(press(), each.pressed);
        setState(each.state);
        bridge->setRecordRunning();
        bridge->cancelRecord();
        EXPECT_EQ(calls("ZebRecorder"), each.cancelled);
        EXPECT_FALSE(bridge->state().recordRunning);
    }
    EXPECT_EQ(desk.texts(), QStringList{"Lock all connected cameras."}) << "asked at the start only";

    host.setPrefBool("wren/display/lock", false);
    setState(zeb::RecordLive);
    for (const int mode : {zeb::MemoryMode, zeb::FileMode}) {
        host.appStatus().enterMode(mode);
        EXPECT_EQ(press(), QStringList());
        bridge->setRecordRunning();
        bridge->cancelRecord();
        EXPECT_EQ(calls("ZebRecorder"), QStringList());
        EXPECT_FALSE(bridge->state().recordRunning) << "in any mode";
    }
}

TEST_F(RecordingTest, ACancelWhileFilesAreSavedInTheBackgroundLeavesTheRecordingFollowed) {
    bridge->setRecordRunning();
    host.flags().set("IsBgSaving", true);
    bridge->cancelRecord();
    EXPECT_TRUE(bridge->state().recordRunning);
}

TEST_F(RecordingTest, ArmingPreparesEveryConnectedCamera) {
    host.setPrefBool("wren/display/lock", true);
    host.setPrefBool("recording/RecAllConnectedCamera", false);
    for (const DOCKEY key : {1, 2, 3, 4}) {
        change(key, {{"locked", true}, {"recordCheck", true}});
    }
    change(7, {{"recordCheck", true}});
    calls();
    bridge->record();
    QStringList expected;
    for (int key = 1; key <= 8; ++key) {
        expected << QString("setRecordCheck %1 false").arg(key);
    }
    expected << "setPrefBool recording/RecAllConnectedCamera true" << Armed;
    EXPECT_EQ(calls(), expected);
    EXPECT_TRUE(bridge->state().recordRunning);
    EXPECT_EQ(desk.texts(), QStringList());
}

TEST_F(RecordingTest, ProblemsAreListedOnceAndTheUserDecides) {
    change(1, {{"alerts", QStringList{"The fan turns slowly", "<b>hot</b>"}}});
    change(3, {{"alerts", QStringList{"The device is warm"}}});
    change(4, {{"alerts", QStringList{"The device is warm", "The lens is missing"}}});
    answerWarning(false);
    EXPECT_EQ(press(), QStringList());
    EXPECT_FALSE(bridge->state().recordRunning);
    EXPECT_EQ(
        warning,
        "Problem with camera.\nGate・・The fan turns slowly\nGate・・<b>hot</b>\n"
        "Nozzle left・・The device is warm\nNozzle right・・The device is warm\nNozzle right・・The lens is missing");
    answerWarning(true);
    EXPECT_EQ(press(), Armed);
    EXPECT_TRUE(bridge->state().recordRunning);
}

TEST_F(RecordingTest, WhatHappensWhileTheUserReadsIsSeen) {
    change(1, {{"alerts", QStringList{"The fan turns slowly"}}});
    const Fault gone{{}, 0, true};
    const struct {
        const char* sentence;
        std::function<void()> meanwhile;
        QStringList pressed;
    } cases[] = {
        {"a second press is refused", [this] { bridge->record(); }, Armed},
        {"the host's record key too", [this] { plugin.slotRecord(); }, Armed},
        {"a camera is disconnected", [this] { camera(2).set(&CameraState::connected, false); }, Armed},
        {"somebody has armed", [this] { setState(zeb::RecordReady); }, {}},
        {"the host has gone to memory mode",
         [this] {
             setState(zeb::RecordLive);
             host.appStatus().enterMode(zeb::MemoryMode);
         },
         {}},
        {"a camera is gone", [&] { host.faults().plant(2, "*", gone); }, Armed},
    };
    for (const auto& each : cases) {
        setState(zeb::RecordLive);
        host.appStatus().enterMode(zeb::LiveMode);
        answerWarning(true, each.meanwhile);
        EXPECT_EQ(press(), each.pressed) << each.sentence;
        host.recorder().cancelRecording(false);
    }
    EXPECT_EQ(desk.texts(), QStringList());
}

TEST_F(RecordingTest, PlayingInStepFollowsTheSignal) {
    host.setPrefBool("wren/settings/syncInEnable", true);
    host.setPrefBool("wren/settings/deviceSpeedPlaying", true);
    const QString tooFast =
        "There are some cameras that are not synchronized shooting because the shooting speed of the device is faster "
        "than the sync frequency.";
    const auto skips = [](int key, int skip) {
        const QString number = QString::number(key);
        return QStringList{"setFrameSkipEnabled " + number + " true", "setPref play/syncMode 0",
                           "setFrameSkipMode " + number + " 0", "setFrameSkip " + number + " " + QString::number(skip)};
    };
    for (const DOCKEY key : {2, 3, 4}) {
        change(key, {{"connected", false}});
    }
    const struct {
        const char* sentence;
        bool external;
        int frequency;
        QVariantMap camera;
        QStringList asked;
        QStringList messages;
    } cases[] = {
        {"half the frequency", true, 1000, {{"rate", 500}}, skips(1, 2), {}},
        {"no whole part of it", true, 1000, {{"rate", 300}}, skips(1, 3), {}},
        {"the frequency itself", true, 1000, {{"rate", 1000}}, skips(1, 1), {}},
        {"faster", true, 1000, {{"rate", 2000}, {"frameSkipEnabled", false}, {"frameSkip", 3}}, {}, {tooFast}},
        {"faster, and set before", true, 1000, {{"rate", 2000}, {"frameSkipEnabled", true}}, skips(1, 1), {tooFast}},
        {"no frequency is chosen", true, 0, {{"rate", 2000}}, {}, {}},
        {"a rate of 0", true, 1000, {{"rate", 0}}, {}, {}},
        {"in a chain the master's rate counts", false, 0, {{"rate", 2000}}, skips(1, 1), {}},
    };
    for (const auto& each : cases) {
        host.setPrefBool("sync/external", each.external);
        bridge->state().sync.frequency = each.frequency;
        change(1, each.camera);
        calls();
        bridge->record();
        const QStringList made = calls();
        EXPECT_EQ(made.filter(QRegularExpression("FrameSkip|setPref ")), each.asked) << each.sentence;
        EXPECT_EQ(desk.take(), each.messages) << each.sentence;
        EXPECT_EQ(made.filter("startRecReady"), Armed) << each.sentence;
        host.recorder().cancelRecording(false);
    }
}

TEST_F(RecordingTest, AnAreaGoesToTheCamerasOfItsRate) {
    bridge->state().areas = {{1000, {-100, 200}}, {2000, {-5, 5}}};
    change(1, {{"rate", 1000}});
    change(2, {{"rate", 2000}});
    change(3, {{"rate", 250}});
    change(4, {{"rate", 250}});
    EXPECT_EQ(press(), Armed);
    EXPECT_EQ(stateOf(1, "recordArea").toList(), (QVariantList{0, 0})) << "areas are out of use";
    host.recorder().cancelRecording(false);

    host.setPrefBool("recording/area", true);
    calls();
    bridge->record();
    EXPECT_EQ(calls().filter("RecordArea"), (QStringList{"setRecordAreaStart 1 -100", "setRecordAreaEnd 1 200",
                                                         "setRecordAreaStart 2 -5", "setRecordAreaEnd 2 5"}));
}

TEST_F(RecordingTest, ACameraThatDoesNotAnswerIsNamedAndTheOthersAreArmed) {
    host.setPrefBool("recording/area", true);
    bridge->state().areas = {{1000, {-100, 200}}};
    const QString problem = "Problem with camera.\n";
    const struct {
        const char* operation;
        QString warned;
        QStringList toldAfterwards;
    } cases[] = {
        {"isConnected", problem + "Ramp: no answer", {}},
        {"getCameraName", problem + "192.168.0.12: Ramp: no answer", {}},
        {"getAlerts", problem + "Ramp・・Ramp: no answer", {}},
        {"setRecordCheck", {}, {"Ramp: no answer"}},
        {"getRecordRate", {}, {"Ramp: no answer"}},
        {"setRecordAreaEnd", {}, {"Ramp: no answer"}},
    };
    for (const auto& each : cases) {
        SCOPED_TRACE(each.operation);
        for (const DOCKEY key : {1, 2, 3}) {
            change(key, {{"rate", 1000}, {"recordCheck", true}, {"recordArea", QVariantList{0, 0}}});
        }
        warning.clear();
        host.faults().plant(2, each.operation, {"no answer", 0, false});
        if (!each.warned.isEmpty()) {
            answerWarning(true);
        }
        EXPECT_EQ(press(), Armed);
        EXPECT_EQ(warning, each.warned);
        EXPECT_EQ(desk.take(), each.toldAfterwards);
        EXPECT_TRUE(bridge->state().recordRunning);
        EXPECT_EQ(stateOf(3, "recordArea").toList(), (QVariantList{-100, 200})) << "the camera behind it";
        EXPECT_FALSE(stateOf(3, "recordCheck").toBool());
        host.faults().clear();
        bridge->cancelRecord();
    }

    host.setPrefBool("wren/display/lock", true);
    for (const DOCKEY key : {1, 2, 3, 4}) {
        change(key, {{"locked", true}});
    }
    host.faults().plant(2, "isParamLocked", {"no answer", 0, false});
    EXPECT_EQ(press(), QStringList()) << "nobody knows whether it is locked";
    EXPECT_EQ(desk.texts(), QStringList{"Lock all connected cameras.\nRamp: no answer"});
}

TEST_F(RecordingTest, OneReadyDialogStandsAndNoneWhileSettingsAreLoaded) {
    const auto dialogs = [] { return visibleWindows().count("GUI_ProgressDialog"); };
    bridge->showReadyProgress();
    EXPECT_EQ(dialogs(), 0) << "the table does not run";
    host.appStatus().setWrenRunning(true);
    bridge->state().loadingRigx = true;
    bridge->showReadyProgress();
    EXPECT_EQ(dialogs(), 0);
    bridge->state().loadingRigx = false;
    bridge->showReadyProgress();
    bridge->showReadyProgress();
    EXPECT_EQ(dialogs(), 1);
    setState(zeb::RecordReady);
    EXPECT_EQ(press(), QStringList{"triggerRecording"}) << "it is not modal";
    bridge->deleteReadyProgress();
    bridge->deleteReadyProgress();
    EXPECT_EQ(dialogs(), 0);
}

}  // namespace
