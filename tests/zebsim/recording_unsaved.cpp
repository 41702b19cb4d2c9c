#include "support/RecordingTest.h"

#include <QMessageBox>

namespace {

const Answer Yes{true, false, QMessageBox::Yes};

class UnsavedImages : public RecordingTest {
protected:
    UnsavedImages() { host.prefs().setValue("alert/unsavedrecording", true); }

    /// A recording that lasts for `ms`.
    void shoot(qint64 ms) {
        test.desk.answers.append(Yes);
        triggerAll();
        pass(ms);
        host.recorder().stopRecording();
        QCoreApplication::processEvents();
        host.appStatus().enterMode(zeb::LiveMode);
        test.desk.answers.clear();
        test.desk.shown.clear();
        ends = 0;
    }
    void save(DOCKEY key) { test.camera(key).noteSaved(*test.camera(key).recording()); }
    void select(DOCKEY key, int first, int last) { test.camera(key).set(&CameraState::selectedRange, {first, last}); }
    /// The lists of the questions since the last asking.
    QList<QStringList> asked() {
        QList<QStringList> lists;
        for (const Message& message : std::exchange(test.desk.shown, {})) {
            EXPECT_EQ(message.preferred, QMessageBox::No);
            lists << message.list;
        }
        return lists;
    }
};

TEST_F(UnsavedImages, AreLostByWhatTakesThemAlone) {
    const auto vanish = [this](DOCKEY key, bool gone) { plant(key, "*", {{}, 0, gone}), pass(1); };
    const auto erase = [this](DOCKEY key) { test.doc(key)->control().eraseRecordedData(0); };
    test.camera(1).set(&CameraState::partitions, 4);
    const struct {
        const char* what;
        std::function<void()> happens;
        const char *byRecording, *byClosing;
    } cases[] = {
        {"it came with the camera", [&] { test.camera(2).set(&CameraState::recorded, true); }, "2: 8192", ""},
        {"all record", [&] { shoot(50); }, "1: 50/1; 2: 50; Impact: 1500", "1: 50/1; 2: 50; Impact: 1500"},
        {"one uses another partition", [&] { test.camera(1).setPartition(2); }, "2: 50; Impact: 1500",
         "1: 50/1; 2: 50; Impact: 1500"},
        {"and records there", [&] { shoot(20); }, "1: 20/2; 2: 20; Impact: 1200",
         "1: 50/1; 1: 20/2; 2: 20; Impact: 1200"},
        {"that is saved, and the first in use again", [&] { save(1), test.camera(1).setPartition(1); },
         "1: 50/1; 2: 20; Impact: 1200", "1: 50/1; 2: 20; Impact: 1200"},
        {"some are chosen and saved", [&] { save(1), select(3, 10, 20), save(3); }, "2: 20", "2: 20"},
        {"fewer are chosen", [&] { select(3, 11, 12); }, "2: 20", "2: 20"},
        {"more are chosen", [&] { select(3, 10, 21); }, "2: 20; Impact: 1200", "2: 20; Impact: 1200"},
        {"another is called so", [&] { test.camera(1).set(&CameraState::name, "Impact"); },
         "2: 20; Impact (192.168.0.16): 1200", "2: 20; Impact (192.168.0.16): 1200"},
        {"it vanishes, another is disconnected", [&] { vanish(3, true), test.camera(2).disconnect(); }, "",
         "2: 20; Impact (192.168.0.16): 1200"},
        {"they come back", [&] { vanish(3, false), test.camera(2).connect(); }, "2: 20; Impact (192.168.0.16): 1200",
         "2: 20; Impact (192.168.0.16): 1200"},
        {"two are erased", [&] { erase(1), erase(3); }, "2: 20", "2: 20"},
        {"all are deleted", [&] { host.docManager().deleteAllDocs(0, 0); }, "", "2: 20"},
    };
    const auto told = [this](const HeldRecordings& lost) {
        QString lines = host.unsavedGuard().lines(lost).join("; ");
        return lines.remove("Camera ").remove(" frames").replace(" in partition ", "/").toStdString();
    };
    for (const auto& row : cases) {
        row.happens();
        const auto held = heldRecordings(host.cameras(), host.cameras().keysOf(&CameraState::connected));
        EXPECT_EQ(told(lostByRecording(held)), row.byRecording) << row.what;
        EXPECT_EQ(told(lostByClosing(held)), row.byClosing) << row.what;
    }
    EXPECT_EQ(messages(),
              "Impact (192.168.0.16): the camera has disappeared. 1200 frames of it are not saved. | "
              "Impact (192.168.0.11): 50 frames in partition 1 were erased. | "
              "Impact (192.168.0.16): 1200 frames were erased. | "
              "Images that nobody has saved are out of reach until a search:\nCamera 2: 20 frames");
}

TEST_F(UnsavedImages, AreAskedAboutOnceBeforeAShoot) {
    shoot(50);
    const QList<QStringList> all{{"Camera 1: 50 frames", "Camera 2: 50 frames", "Impact: 1500 frames"}};
    for (const auto arm : {&SimRecorder::startRecReady, &SimRecorder::press}) {
        ends = 0;
        (host.recorder().*arm)();
        EXPECT_EQ(asked(), all);
        EXPECT_EQ(states(), "0 0 0 - 0");
        EXPECT_EQ(ends, 1) << "whoever follows the recording hears that there is none";
        test.desk.answers = {Yes};
        (host.recorder().*arm)();
        EXPECT_EQ(asked(), all);
        pass(600);
        host.recorder().triggerRecording();
        EXPECT_EQ(states(), "3 3 3 - 3");
        EXPECT_EQ(asked().size(), 0) << "never between arming and the trigger";
        pass(50);
        host.recorder().stopRecording();
        QCoreApplication::processEvents();
        host.appStatus().enterMode(zeb::LiveMode);
    }
}

TEST_F(UnsavedImages, AreSparedByATriggerThatNobodyWasAskedAbout) {
    test.camera(1).set(&CameraState::partitions, 4);
    shoot(50);
    for (const bool spares : {true, false}) {
        host.prefs().setValue("alert/unsavedrecording", spares);
        test.camera(1).change({{"partition", 2}});
        host.docManager().disconnectDocs({2, 3});
        host.recorder().startRecReady();
        test.camera(1).change({{"partition", spares ? 1 : 3}});
        test.camera(2).change({{"connected", true}, {"recordState", zeb::RecordReady}});
        host.recorder().triggerRecording();
        EXPECT_EQ(QString::fromStdString(messages()).count(" images that nobody has saved. It does not"), spares * 2);
        EXPECT_EQ(states(), spares ? "0 2 0 - 0" : "3 3 0 - 3");
    }
    test.camera(1).change({{"partition", 1}});
    pass(20);
    host.recorder().stopRecording();
    EXPECT_EQ(told(test.camera(1).recordingOf(3)), "0..19 trigger 0") << "where it was triggered";
    EXPECT_NE(messages().find("in partition 3, and another one is in use."), std::string::npos);
    EXPECT_EQ(recorded(1), "0..49 trigger 0");
}

TEST_F(UnsavedImages, AreAskedAboutAgainWhenCamerasComeMeanwhile) {
    shoot(50);
    host.docManager().disconnectDocs({2, 3});
    test.desk.answers = {Yes, Yes};
    test.desk.whileStanding = [this] {
        plant(1, "*", {{}, 0, true});
        host.docManager().connectDocs({2});
    };
    host.recorder().startRecReady();
    EXPECT_EQ(asked(), (QList<QStringList>{{"Camera 1: 50 frames"}, {"Camera 2: 50 frames"}}));
    EXPECT_EQ(states(), "2 0 - 2");
    host.recorder().cancelRecording(false);
    test.desk.answers = {Yes};
    test.desk.whileStanding = [this] { host.setRig(standardRig(1)); };
    host.recorder().startRecReady();
    QCoreApplication::processEvents();
    EXPECT_EQ(states(), "0 - 0") << "the cameras are no more";
}

}  // namespace
