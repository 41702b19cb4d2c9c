#include "support/RecordingTest.h"

namespace {

TEST_F(RecordingTest, TellsOnceOfEachCameraThatFailsOrGoes) {
    enum Phase { AtRest, Armed, Recording };
    const auto fail = [this](DOCKEY key, const char* operation) { plant(key, operation, {"no answer", 0, false}); };
    const auto vanish = [this](DOCKEY key) { plant(key, "*", {{}, 0, true}); };
    const auto leave = [this](const DocKeyList& keys) { host.docManager().disconnectDocs(keys); };
    const auto comeBack = [&](DOCKEY key) { leave({key}), test.camera(key).set(&CameraState::connected, true); };
    const struct {
        const char* what;
        Phase phase;
        std::function<void()> happens;
        QStringList told;
        const char* states;
        /// So many of the last that are told have lost the recording that has ended.
        int lost;
    } rows[] = {
        {"one vanishes", AtRest, [&] { vanish(2); }, {"Camera 2: the camera has disappeared."}, "0 0 - 0 live", 0},
        {"nobody works with one that vanishes", AtRest, [&] { leave({2}), vanish(2); }, {}, "0 0 - 0 live", 0},
        {"there is no camera to arm",
         AtRest,
         [&] {
             leave({1, 2, 3}), host.recorder().startRecReady();
         },
         {},
         "0 0 0 - 0 live, told of the end",
         0},
        {"two can't be armed",
         AtRest,
         [&] { fail(1, "arm"), fail(2, "arm"), armAll(); },
         {"Camera 1: no answer. It does not take part in the recording.",
          "Camera 2: no answer. It does not take part in the recording."},
         "4 4 2 - 2 live",
         0},
        {"one of them vanishes, the others are disconnected",
         Armed,
         [&] {
             vanish(1), leave({2, 3});
         },
         {"Camera 1: the camera has disappeared. It does not take part in the recording.",
          "Camera 2: the camera was disconnected. It does not take part in the recording.",
          "Impact: the camera was disconnected. It does not take part in the recording."},
         "0 0 - 0 live, told of the end",
         0},
        {"one was away between two looks",
         Armed,
         [&] { comeBack(1); },
         {"Camera 1: the camera has left the recording. It does not take part in the recording."},
         "0 2 2 - 2 live",
         0},
        {"none can be triggered",
         Armed,
         [&] { fail(1, "trigger"), fail(2, "trigger"), fail(3, "trigger"), host.recorder().triggerRecording(); },
         {"Camera 1: no answer. It does not take part in the recording.",
          "Camera 2: no answer. It does not take part in the recording.",
          "Impact: no answer. It does not take part in the recording."},
         "4 4 4 - 0 live, told of the end",
         3},
        {"one was away between two looks",
         Recording,
         [&] { comeBack(2); },
         {"Camera 2: the camera has left the recording. Its recording is lost."},
         "3 0 3 - 3 live",
         0},
        {"one breaks, one vanishes, one is disconnected",
         Recording,
         [&] { fail(1, "record"), vanish(2), leave({3}); },
         {"Camera 1: no answer. The recording ended early with 1 frames.",
          "Camera 2: the camera has disappeared. Its recording is lost.",
          "Impact: the camera was disconnected. Its recording is lost."},
         "4 0 - 0 memory, told of the end",
         2},
    };
    for (const auto& row : rows) {
        begin();
        if (row.phase != AtRest) {
            armAll();
        }
        if (row.phase == Recording) {
            host.recorder().triggerRecording();
        }
        row.happens();
        pass(1);
        EXPECT_EQ(messages(), row.told.join('\n').toStdString()) << row.what;
        EXPECT_EQ(states() + (host.isMemoryMode() ? " memory" : " live") + (ends == 1 ? ", told of the end" : ""),
                  row.states)
            << row.what;
        EXPECT_EQ(host.recorder().lost(), row.told.mid(row.told.size() - row.lost)) << row.what;
        pass(1);
        EXPECT_EQ(messages(), "") << row.what << ": told once";
    }
}

TEST_F(RecordingTest, WhatIsLostBelongsToTheLastThatWasTriggered) {
    const auto lose = [this](const QList<DOCKEY>& keys) {
        for (const bool gone : {true, false}) {
            for (const DOCKEY key : keys) {
                plant(key, "*", {{}, 0, gone});
            }
            pass(1);
        }
    };
    triggerAll();
    lose({1, 2, 3});
    EXPECT_EQ(recorded(2), "nothing");
    armAll();
    lose({1, 2, 3});
    EXPECT_EQ(host.recorder().lost().filter("Its recording is lost.").size(), 3) << "not those that were only armed";
    triggerAll();
    lose({2});
    host.recorder().stopRecording();
    EXPECT_EQ(host.recorder().lost(), QStringList("Camera 2: the camera has disappeared. Its recording is lost."));
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
