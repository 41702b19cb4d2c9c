#include "support/RecordingTest.h"

namespace {

TEST_F(RecordingTest, GoesThroughAllStatesOnTheClock) {
    host.recorder().startRecReady();
    EXPECT_EQ(states(), "2 2 1 - 1") << "one that is not ready yet would miss the trigger of the others";
    EXPECT_EQ(test.doc(3)->control().getCameraStatus(), zeb::CameraRecReady);
    pass(499);
    EXPECT_EQ(states(), "2 2 1 - 1");
    pass(1);
    EXPECT_EQ(states(), "2 2 2 - 2");
    EXPECT_EQ(test.doc(1)->control().getCameraStatus(), zeb::CameraTriggerReady);
    EXPECT_EQ(test.doc(3)->control().getCameraStatus(), zeb::CameraEndlessReady);
    pass(1000);
    host.recorder().triggerRecording();
    EXPECT_EQ(states(), "3 3 3 - 3");
    pass(8191);
    EXPECT_EQ(states(), "3 3 3 - 3");
    EXPECT_EQ(ends, 0);
    test.clock.advance(1);
    EXPECT_EQ(states(), "3 3 3 - 3") << "a question ends nothing";
    pass(1638);
    EXPECT_EQ(states(), "0 0 3 - 3");
    pass(1);
    EXPECT_EQ(states(), "0 0 0 - 0");
    EXPECT_EQ(recorded(1), "0..8191 trigger 0");
    EXPECT_EQ(recorded(3), "0..108303 trigger 10000") << "only a second was there before the trigger";
    EXPECT_EQ(ends, 1);
    EXPECT_TRUE(host.isMemoryMode());
    EXPECT_EQ(messages(), "");
    EXPECT_EQ(test.doc(1)->frames().getFrameCount(0, 0), 8192u);
}

TEST_F(RecordingTest, KeepsWhatThereIsWhenItIsStopped) {
    test.camera(1).set(&CameraState::shutter, 8000);
    triggerAll();
    pass(500);
    host.recorder().stopRecording();
    QCoreApplication::processEvents();
    EXPECT_EQ(states(), "0 0 0 - 0");
    EXPECT_EQ(recorded(1), "0..499 trigger 0");
    EXPECT_EQ(ends, 1);
    host.appStatus().enterMode(zeb::LiveMode);
    test.camera(1).change({{"resolution", QVariantList{512, 512}}, {"shutter", 16000}});
    EXPECT_EQ(test.camera(1).recording()->resolution, QSize(1024, 1024)) << "frames stay as they were recorded";
    EXPECT_EQ(test.camera(1).recording()->shutter, 8000);
}

TEST_F(RecordingTest, IsCancelledInEachState) {
    test.camera(1).change({{"recorded", true}, {"recordedRange", QVariantList{0, 99}}});
    host.recorder().startRecReady();
    host.recorder().cancelRecording(false);
    EXPECT_EQ(states(), "0 0 0 - 0");
    armAll();
    host.recorder().cancelRecording(false);
    EXPECT_EQ(states(), "0 0 0 - 0");
    EXPECT_EQ(recorded(1), "0..99 trigger 0") << "never triggered";
    triggerAll();
    pass(9000);
    EXPECT_EQ(states(), "0 0 3 - 3");
    int kept = 0;
    QObject::connect(&host.events(), &HostEvents::somethingRecorded, &plugin, [&] { ++kept; });
    host.recorder().cancelRecording(true);
    EXPECT_EQ(states(), "0 0 0 - 0");
    EXPECT_EQ(recorded(1), "0..8191 trigger 0") << "a cancel throws nothing away";
    EXPECT_EQ(recorded(3), "0..90999 trigger 1000");
    EXPECT_EQ(kept, 1);
    EXPECT_EQ(messages(), "The recording was ended. The cameras keep what they have; memory mode shows it.");
    host.recorder().cancelRecording(false);
    pass(100000);
    EXPECT_EQ(ends, 0) << "whoever cancels knows that it is over";
    EXPECT_TRUE(host.isLiveMode());
    armAll();
    plant(2, "cancel", {{}, 0, true});
    host.recorder().cancel();
    EXPECT_EQ(messages(), "Camera 2: the camera has disappeared. It does not take part in the recording.");
    EXPECT_EQ(ends, 1) << "the host has cancelled by itself";
}

TEST_F(RecordingTest, APressThatMeetsTheEndIsNoMoreThanTheEnd) {
    const struct {
        const char* what;
        std::function<void()> press;
    } rows[] = {{"armed by the table", [this] { host.recorder().startRecReady(); }},
                {"the host's key", [this] { host.recorder().press(); }},
                {"cancelled by the table", [this] { host.recorder().cancelRecording(true); }},
                {"the host's cancel", [this] { host.recorder().cancel(); }}};
    for (const bool timerSawIt : {false, true}) {
        for (const auto& row : rows) {
            host.appStatus().enterMode(zeb::LiveMode);
            ends = 0;
            triggerAll();
            test.clock.advance(100000);
            if (timerSawIt) {
                host.recorder().proceed();
            }
            row.press();
            EXPECT_EQ(states(), "0 0 0 - 0") << row.what;
            EXPECT_EQ(recorded(1), "0..8191 trigger 0") << row.what;
            QCoreApplication::processEvents();
            EXPECT_EQ(ends, 1) << row.what;
            EXPECT_TRUE(host.isMemoryMode()) << row.what;
        }
    }
}

TEST_F(RecordingTest, KeepsOfASharePreciselyThatShare) {
    host.prefs().setValue("recording/area", true);
    zeb::TriggerSettings settings;
    settings.manualBeforePercent = 25;
    test.camera(3).setTriggerMode(zeb::TriggerManual, settings);
    settings.manualBeforePercent = 0.1F;
    test.camera(1).setTriggerMode(zeb::TriggerManual, settings);
    EXPECT_EQ(test.camera(1).get(&CameraState::triggerFrame), 8184) << "of 8192, but for a thousandth";
    test.camera(2).set(&CameraState::recordArea, {0, 99});
    host.recorder().startRecReady();
    pass(100000);
    host.recorder().triggerRecording();
    pass(100000);
    EXPECT_EQ(recorded(3), "0..131071 trigger 32768") << "a quarter from before the trigger";
    EXPECT_EQ(recorded(2), "0..99 trigger 0");
    host.appStatus().enterMode(zeb::LiveMode);
    host.prefs().setValue("recording/area", false);
    triggerAll();
    pass(100000);
    EXPECT_EQ(recorded(2), "0..8191 trigger 0") << "areas are out of use";
    EXPECT_EQ(messages(), "");
    host.appStatus().enterMode(zeb::LiveMode);
    host.prefs().setValue("recording/area", true);
    test.camera(2).set(&CameraState::recordArea, {9000, 9001});
    triggerAll();
    pass(100000);
    EXPECT_EQ(messages(), "Camera 2: no frame of its record area was recorded.");
    EXPECT_EQ(host.recorder().lost(), QStringList{"Camera 2: no frame of its record area was recorded."});
    host.appStatus().enterMode(zeb::LiveMode);
    armAll();
    host.recorder().cancelRecording(false);
    EXPECT_EQ(host.recorder().lost().size(), 1) << "the recording that can be saved is still that one";
}

TEST_F(RecordingTest, ACameraThatIsBusyByItselfSpeaksForItselfAlone) {
    const DocList docs = test.docs({1, 2});
    for (const int state : {zeb::RecordCtsReady, zeb::RecordReady, zeb::RecordRecording}) {
        test.camera(1).change({{"recordState", state}, {"recorded", true}});
        test.camera(2).change({{"recorded", true}});
        EXPECT_EQ(states(), std::to_string(state) + " 0 0 - 0");
        EXPECT_EQ(host.recorder().isRecording(), state == zeb::RecordRecording);
        EXPECT_TRUE(host.recorder().isUnderWay()) << "whoever closes or disconnects is asked";
        EXPECT_FALSE(host.cameraOps().canSync(docs));
        EXPECT_TRUE(host.cameraOps().canSync(test.docs({2})));
        EXPECT_FALSE(test.doc(1)->control().hasRecordedData());
        EXPECT_THROW(test.doc(1)->control().eraseRecordedData(0), std::runtime_error);
        EXPECT_TRUE(test.doc(2)->control().hasRecordedData());
        EXPECT_THROW(host.docManager().deleteAllDocs(0, 0), std::runtime_error);
        host.recorder().triggerRecording();
        host.recorder().stopRecording();
        pass(100000);
        EXPECT_EQ(states(), std::to_string(state) + " 0 0 - 0") << "nobody has begun a recording";
    }
    host.recorder().cancelRecording(false);
    EXPECT_EQ(states(), "3 0 0 - 0");
    test.camera(1).set(&CameraState::recordState, zeb::RecordReady);
    host.recorder().cancelRecording(false);
    EXPECT_EQ(states(), "0 0 0 - 0");
    EXPECT_EQ(ends, 0);
    EXPECT_EQ(messages(), "");
}

TEST_F(RecordingTest, ThePressTakesInWhatIsArmedAndLeavesAloneWhatRecords) {
    test.camera(1).set(&CameraState::recordState, zeb::RecordReady);
    test.camera(2).set(&CameraState::recordState, zeb::RecordRecording);
    armAll();
    EXPECT_EQ(states(), "2 3 2 - 2");
    EXPECT_FALSE(test.doc(3)->control().hasRecordedData());
    EXPECT_THROW(test.doc(3)->control().eraseRecordedData(0), std::runtime_error);
    host.recorder().triggerRecording();
    const char* notice = "Camera 2: the camera records by itself. It does not take part in the recording.";
    EXPECT_EQ(messages(), notice);
    pass(100);
    host.recorder().stopRecording();
    QCoreApplication::processEvents();
    EXPECT_EQ(states(), "0 3 0 - 0");
    EXPECT_EQ(recorded(1), "0..99 trigger 0");
    EXPECT_EQ(recorded(2), "nothing");
    EXPECT_EQ(host.recorder().lost(), QStringList{notice});
    EXPECT_EQ(ends, 1);
    host.appStatus().enterMode(zeb::LiveMode);
    test.camera(2).set(&CameraState::recordState, zeb::RecordLive);
    pass(1);
    EXPECT_TRUE(host.isLiveMode()) << "its end is not that of the host's recording";
    EXPECT_EQ(ends, 1);
}

TEST_F(RecordingTest, ACameraThatTriggersItselfKeepsWhatItRecords) {
    for (const qint64 early : {100, 9000}) {
        host.appStatus().enterMode(zeb::LiveMode);
        ends = 0;
        armAll();
        test.camera(1).set(&CameraState::recordState, zeb::RecordRecording);
        pass(0);
        EXPECT_EQ(messages(), "Camera 1: the camera has triggered itself. It records on.");
        pass(early);
        EXPECT_EQ(states(), early == 100 ? "3 2 2 - 2" : "0 2 2 - 2") << "the others wait for their trigger";
        EXPECT_TRUE(host.isLiveMode());
        host.recorder().triggerRecording();
        pass(50);
        host.recorder().stopRecording();
        QCoreApplication::processEvents();
        EXPECT_EQ(states(), "0 0 0 - 0");
        EXPECT_EQ(recorded(1), early == 100 ? "0..149 trigger 0" : "0..8191 trigger 0");
        EXPECT_EQ(recorded(2), "0..49 trigger 0");
        EXPECT_EQ(messages(), "");
        EXPECT_EQ(host.recorder().lost(), QStringList());
        EXPECT_EQ(ends, 1);
    }
}

TEST_F(RecordingTest, EachPartitionKeepsItsOwn) {
    host.docManager().selectDoc(1);
    test.camera(1).set(&CameraState::partitions, 4);
    EXPECT_EQ(test.doc(1)->frames().getFrameCount(0, 0), 2048u) << "the memory is divided";
    triggerAll();
    EXPECT_THROW(host.cameraOps().setPartition(2, 0), std::exception) << "not while it records";
    pass(100000);
    EXPECT_EQ(recorded(1), "0..2047 trigger 0");
    test.doc(1)->control().setSelectRange(0, 0);
    test.doc(1)->frames().setRecordCheck(true);
    host.cameraOps().setPartition(2, 0);
    EXPECT_EQ(recorded(1), "nothing");
    EXPECT_FALSE(test.doc(1)->frames().isRecordCheck());
    test.camera(1).set(&CameraState::rate, 500);
    triggerAll();
    pass(100);
    host.recorder().stopRecording();
    EXPECT_EQ(recorded(1), "0..49 trigger 0");
    host.cameraOps().setPartition(1, 0);
    EXPECT_EQ(recorded(1), "0..2047 trigger 0");
    EXPECT_EQ(test.doc(1)->frames().getSelectEndFrame(0), 0);
    EXPECT_TRUE(test.doc(1)->frames().isRecordCheck());
    EXPECT_EQ(test.doc(1)->control().getRecordedRateOfPartition(2), 500u);
    EXPECT_EQ(test.doc(1)->control().getRecordedRateOfPartition(3), 0u);
}

TEST_F(RecordingTest, TheHostsKeyArmsTriggersAndStops) {
    host.recorder().press();
    EXPECT_EQ(states(), "2 2 1 - 1");
    host.recorder().press();
    EXPECT_EQ(states(), "2 2 1 - 1") << "one still waits for CTS";
    pass(500);
    host.setTriggerTesting(true);
    host.recorder().press();
    EXPECT_EQ(states(), "2 2 2 - 2") << "a test records nothing";
    EXPECT_EQ(messages(), "Trigger test: the trigger has come. Nothing is recorded.");
    host.setTriggerTesting(false);
    host.recorder().press();
    EXPECT_EQ(states(), "3 3 3 - 3");
    host.recorder().press();
    EXPECT_EQ(states(), "0 0 0 - 3") << "nobody has been told of the end";
    QCoreApplication::processEvents();
    EXPECT_EQ(states(), "0 0 0 - 0");
    EXPECT_EQ(ends, 1);
    host.appStatus().enterMode(zeb::LiveMode);
    host.recorder().press();
    host.setRig(standardRig(1));
    QCoreApplication::processEvents();
    EXPECT_EQ(ends, 2) << "its cameras are no more";
}

}  // namespace
