#include "support/RecordingTest.h"

namespace {

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
    EXPECT_EQ(host.recorder().lost().size(), 3) << "the next save names them all";
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
    for (const DOCKEY key : {1, 2}) {
        plant(key, "*", {{}, 0, true});
    }
    pass(1);
    messages();
    EXPECT_EQ(host.recorder().lost().size(), 2) << "what there is to save is of the last that was triggered";
    for (const DOCKEY key : {1, 2}) {
        plant(key, "*", {});
    }
    triggerAll();
    for (const DOCKEY key : {1, 2}) {
        plant(key, "*", {{}, 0, true});
    }
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

}  // namespace
