#include "DOC_Control.h"
#include "DOC_Frames.h"
#include "DOC_Interface.h"
#include "camera/RecordSettings.h"
#include "support/StubPlugin.h"
#include "support/TestHost.h"

#include <gtest/gtest.h>

namespace {

/// "first..last trigger t", or "nothing".
std::string told(const std::optional<Recording>& recording) {
    if (!recording) return "nothing";
    return QStringLiteral("%1..%2 trigger %3")
        .arg(recording->first)
        .arg(recording->last)
        .arg(recording->trigger)
        .toStdString();
}

/// 1000 frames at 1000 a second.
RecordSettings settingsOf(int mode, int randomFrames = 0, int randomTimes = 0, const QPoint& area = {}) {
    RecordSettings settings;
    settings.mode = mode;
    settings.capacity = 1000;
    settings.rate = 1000;
    settings.triggerFrame = 700;
    settings.randomFrames = randomFrames;
    settings.randomTimes = randomTimes;
    settings.area = area;
    return settings;
}

constexpr qint64 Long = 100000;

TEST(RecordSettings, MakeTheRangeOfARecording) {
    const struct {
        const char* what;
        RecordSettings settings;
        qint64 ready, recorded;
        const char* range;
    } rows[] = {
        {"start keeps what comes after the trigger", settingsOf(zeb::TriggerStart), Long, Long, "0..999 trigger 0"},
        {"stopped after a quarter of a second", settingsOf(zeb::TriggerStart), Long, 250, "0..249 trigger 0"},
        {"stopped at once it has the trigger's frame", settingsOf(zeb::TriggerStart), Long, 0, "0..0 trigger 0"},
        {"center keeps half from before", settingsOf(zeb::TriggerCenter), Long, Long, "0..999 trigger 500"},
        {"center soon after ready has fewer before", settingsOf(zeb::TriggerCenter), 20, Long, "0..519 trigger 20"},
        {"end stops with the trigger", settingsOf(zeb::TriggerEnd), Long, Long, "0..999 trigger 999"},
        {"end at once after ready", settingsOf(zeb::TriggerEnd), 0, Long, "0..0 trigger 0"},
        {"manual keeps what it was set to for after the trigger", settingsOf(zeb::TriggerManual), Long, Long,
         "0..999 trigger 300"},
        {"random takes its frames so many times", settingsOf(zeb::TriggerRandom, 30, 4), Long, Long,
         "0..119 trigger 0"},
        {"random without an end fills the memory", settingsOf(zeb::TriggerRandom, 300, 0), Long, Long,
         "0..899 trigger 0"},
        {"random of more than fits", settingsOf(zeb::TriggerRandomReset, 300, 2000000000), Long, Long,
         "0..899 trigger 0"},
        {"random center has half of its frames before", settingsOf(zeb::TriggerRandomCenter, 100, 2), Long, Long,
         "0..199 trigger 50"},
        {"random manual has its share before", settingsOf(zeb::TriggerRandomManual, 100, 2), Long, Long,
         "0..199 trigger 30"},
        {"two stages, an eighth before", settingsOf(zeb::TriggerTwostageOneeighth), Long, Long, "0..999 trigger 125"},
        {"an area counts from the trigger", settingsOf(zeb::TriggerCenter, 0, 0, {-100, 49}), Long, Long,
         "400..549 trigger 500"},
        {"an area reaches past what is there", settingsOf(zeb::TriggerCenter, 0, 0, {-100, 49}), 20, 10,
         "0..29 trigger 20"},
        {"an area that was not reached", settingsOf(zeb::TriggerStart, 0, 0, {500, 600}), Long, 100, "nothing"},
        {"an area that ends before it starts is none", settingsOf(zeb::TriggerStart, 0, 0, {5, 4}), Long, Long,
         "0..999 trigger 0"},
    };
    for (const auto& row : rows)
        EXPECT_EQ(told(row.settings.recording(row.ready, row.recorded)), row.range) << row.what;
    RecordSettings none = settingsOf(zeb::TriggerCenter);
    none.capacity = 0;
    EXPECT_EQ(told(none.recording(Long, Long)), "nothing") << "no memory";
}

/// Keys: 1 and 2 standard cameras with 8192 frames at 1000 a second, 3 a fast one that waits half a second for CTS and
/// has the trigger a quarter into 131072 frames at 10000 a second.
class RecordingTest : public testing::Test {
protected:
    RecordingTest() : test(rig()) {
        for (Camera* camera : host.cameras().all()) camera->set(&CameraState::connected, true);
        host.appStatus().registerPlugin(&plugin);
        QObject::connect(&plugin, &StubPlugin::signalEndRecording, &plugin, [this] { ++ends; });
    }

    static Rig rig() {
        Rig rig = Rig::standard(2);
        Rig fast = Rig::fromFile(QStringLiteral("eight-mixed"));
        rig.devices.append(fast.devices.at(5));
        rig.devices.last().heads.first().triggerFrame = 98304;
        for (RigDevice& device : rig.devices) {
            device.latency = 0;
            device.heads.first().recorded = false;
        }
        return rig;
    }

    void pass(qint64 ms) {
        test.clock.advance(ms);
        host.recorder().proceed();
        QCoreApplication::processEvents();
        test.clock.join();
    }
    /// The states of the cameras, and that of the whole.
    std::string states() {
        const int whole = host.recorder().getRecordingState();
        QString list;
        for (const Camera* camera : host.cameras().all())
            list += QString::number(camera->get(&CameraState::recordState)) + QLatin1Char(' ');
        return QStringLiteral("%1- %2").arg(list).arg(whole).toStdString();
    }
    std::string recorded(DOCKEY key) { return told(test.camera(key).recording()); }
    void plant(DOCKEY key, const char* operation, const Fault& fault) {
        host.faults().plant(key, QString::fromLatin1(operation), fault);
    }
    void armAll() {
        host.recorder().startRecReady();
        pass(600);
    }
    void triggerAll() {
        armAll();
        host.recorder().triggerRecording();
    }
    std::string messages() {
        QCoreApplication::processEvents();
        const QStringList texts = test.desk.texts();
        test.desk.shown.clear();
        return texts.join(QStringLiteral(" | ")).toStdString();
    }

    TestHost test;
    SimHost& host = test.host;
    StubPlugin plugin;
    int ends = 0;
};

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
    triggerAll();
    pass(500);
    host.recorder().stopRecording();
    QCoreApplication::processEvents();
    EXPECT_EQ(states(), "0 0 0 - 0");
    EXPECT_EQ(recorded(1), "0..499 trigger 0");
    EXPECT_EQ(ends, 1);
    host.appStatus().enterMode(zeb::LiveMode);
    test.camera(1).set(&CameraState::resolution, {512, 512});
    EXPECT_EQ(test.camera(1).recording()->resolution, QSize(1024, 1024)) << "frames stay as they were recorded";
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
            if (timerSawIt) host.recorder().proceed();
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

TEST_F(RecordingTest, RandomTriggersFillTheMemoryUnlessTheyAreCounted) {
    const struct {
        int mode;
        bool counted;
        int frames;
    } rows[] = {{zeb::TriggerRandom, true, 400},
                {zeb::TriggerRandom, false, 8100},
                {zeb::TriggerRandomReset, false, 8100},
                {zeb::TriggerRandomLoop, false, 400}};
    for (const auto& row : rows) {
        CameraState state = test.camera(1).state();
        state.triggerMode = row.mode;
        state.randomFrames = 100;
        state.randomTimes = 4;
        state.randomCounted = row.counted;
        EXPECT_EQ(RecordSettings::of(state, test.camera(1).model()).framesAfter(), row.frames) << row.mode;
    }
}

TEST_F(RecordingTest, GoesOnWithoutTheCamerasThatFail) {
    plant(1, "arm", {QStringLiteral("no answer"), 0, false});
    plant(2, "arm", {QStringLiteral("too hot"), 0, false});
    armAll();
    EXPECT_EQ(messages(),
              "Camera 1: no answer. It does not take part in the recording.\n"
              "Camera 2: too hot. It does not take part in the recording.");
    EXPECT_EQ(states(), "4 4 2 - 2");
    plant(3, "trigger", {QStringLiteral("no signal"), 0, false});
    host.recorder().triggerRecording();
    EXPECT_EQ(messages(), "Impact: no signal. It does not take part in the recording.");
    EXPECT_EQ(states(), "4 4 4 - 0");
    EXPECT_EQ(ends, 1);
    EXPECT_TRUE(host.isLiveMode()) << "nothing was recorded";
    host.recorder().cancelRecording(false);
    EXPECT_EQ(states(), "0 0 0 - 0");
}

TEST_F(RecordingTest, MissesCamerasThatGo) {
    triggerAll();
    pass(100);
    plant(1, "record", {QStringLiteral("the memory is broken"), 0, false});
    plant(2, "*", {{}, 0, true});
    host.docManager().disconnectDocs({3});
    pass(100);
    EXPECT_EQ(messages(),
              "Camera 1: the memory is broken. The recording ended early with 200 frames.\n"
              "Camera 2: the camera has disappeared. Its recording is lost.\n"
              "Impact: the camera was disconnected. Its recording is lost.");
    EXPECT_EQ(recorded(1), "0..199 trigger 0");
    EXPECT_EQ(host.recorder().lost(), (QStringList{"Camera 2: the camera has disappeared. Its recording is lost.",
                                                   "Impact: the camera was disconnected. Its recording is lost."}));
    EXPECT_EQ(states(), "4 0 - 0") << "it is over";
    EXPECT_EQ(ends, 1);
    EXPECT_TRUE(host.isMemoryMode());
    pass(100000);
    EXPECT_EQ(messages(), "") << "told once";
    plant(2, "*", {});
    EXPECT_EQ(recorded(2), "nothing");
    EXPECT_EQ(states(), "4 0 0 - 0");
    host.recorder().startRecReady();
    EXPECT_EQ(states(), "2 2 0 - 2");
    for (const DOCKEY key : {1, 2}) plant(key, "*", {{}, 0, true});
    pass(1);
    messages();
    EXPECT_EQ(host.recorder().lost().size(), 2) << "what there is to save is of the last that was triggered";
    for (const DOCKEY key : {1, 2}) plant(key, "*", {});
    triggerAll();
    for (const DOCKEY key : {1, 2}) plant(key, "*", {{}, 0, true});
    pass(1);
    EXPECT_EQ(host.recorder().lost(), (QStringList{"Camera 1: the camera has disappeared. Its recording is lost.",
                                                   "Camera 2: the camera has disappeared. Its recording is lost."}))
        << "nothing of the one before";
}

TEST_F(RecordingTest, MissesReadyCamerasAndEndsWhenNoneIsLeft) {
    armAll();
    plant(1, "*", {{}, 0, true});
    host.docManager().disconnectDocs({2, 3});
    pass(1);
    EXPECT_EQ(messages(),
              "Camera 1: the camera has disappeared. It does not take part in the recording.\n"
              "Camera 2: the camera was disconnected. It does not take part in the recording.\n"
              "Impact: the camera was disconnected. It does not take part in the recording.");
    EXPECT_EQ(ends, 1);
    EXPECT_TRUE(host.isLiveMode());
    host.recorder().startRecReady();
    QCoreApplication::processEvents();
    EXPECT_EQ(ends, 2) << "there is no camera to arm";
}

TEST_F(RecordingTest, TellsOfCamerasThatWereAwayBetweenTwoLooks) {
    const auto reconnect = [this](DOCKEY key) {
        host.docManager().disconnectDocs({key});
        test.camera(key).set(&CameraState::connected, true);
    };
    armAll();
    reconnect(1);
    pass(1);
    EXPECT_EQ(messages(), "Camera 1: the camera has left the recording. It does not take part in the recording.");
    host.recorder().triggerRecording();
    reconnect(2);
    pass(1);
    EXPECT_EQ(messages(), "Camera 2: the camera has left the recording. Its recording is lost.");
    EXPECT_EQ(states(), "0 0 3 - 3");
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

TEST_F(RecordingTest, TheTriggerNamesThoseThatAreNotReady) {
    host.docManager().disconnectDocs({2});
    host.recorder().startRecReady();
    test.camera(2).set(&CameraState::connected, true);
    host.recorder().triggerRecording();
    EXPECT_EQ(messages(),
              "Camera 2: the camera is not ready. It does not take part in the recording.\n"
              "Impact: the camera is not ready. It does not take part in the recording.");
    EXPECT_EQ(states(), "3 0 0 - 3") << "the one that still waited for CTS is put back";
    pass(100000);
    EXPECT_EQ(recorded(1), "0..8191 trigger 0");
    EXPECT_EQ(host.recorder().lost().size(), 2);
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

TEST_F(RecordingTest, TellsOfACameraThatVanishesAtRest) {
    plant(2, "*", {{}, 0, true});
    pass(1);
    EXPECT_EQ(messages(), "Camera 2: the camera has disappeared.");
    pass(1);
    EXPECT_EQ(messages(), "") << "told once";
    plant(2, "*", {});
    host.docManager().disconnectDocs({2});
    pass(1);
    plant(2, "*", {{}, 0, true});
    pass(1);
    EXPECT_EQ(messages(), "") << "nobody works with it";
}

TEST_F(RecordingTest, ACameraThatCannotBeStoppedFillsItsMemory) {
    triggerAll();
    plant(2, "stop", {QStringLiteral("no answer"), 0, false});
    pass(100);
    host.recorder().stopRecording();
    EXPECT_EQ(messages(), "Camera 2: no answer");
    EXPECT_EQ(states(), "0 3 0 - 3");
    EXPECT_EQ(ends, 0);
    pass(8092);
    EXPECT_EQ(recorded(2), "0..8191 trigger 0");
    EXPECT_EQ(ends, 1);
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
    host.recorder().press();
    EXPECT_EQ(states(), "0 0 0 - 0") << "in live mode only";
    host.appStatus().enterMode(zeb::LiveMode);
    host.recorder().press();
    host.setRig(Rig::standard(1));
    QCoreApplication::processEvents();
    EXPECT_EQ(ends, 2) << "its cameras are no more";
}

}  // namespace
