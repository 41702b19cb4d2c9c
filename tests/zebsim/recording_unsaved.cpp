#include "support/RecordingTest.h"

#include <QMessageBox>

#include <gmock/gmock.h>

namespace {

const QString Over = "Cameras hold images that nobody has saved. Record over them all the same?";
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
        for (const Message& message : test.desk.shown) {
            EXPECT_EQ(message.text, Over);
            EXPECT_EQ(message.preferred, QMessageBox::No);
            lists << message.list;
        }
        test.desk.shown.clear();
        return lists;
    }
};

TEST_F(UnsavedImages, AreLostByWhatTakesThemAlone) {
    test.camera(1).set(&CameraState::partitions, 4);
    const QString one = "Camera 1: 50 frames in partition 1";
    const QString two = "Camera 2: 50 frames";
    const QString three = "Impact: 1500 frames";
    const QString alike = "Camera 2 (192.168.0.12): 50 frames";
    const struct {
        const char* what;
        std::function<void()> happens;
        QStringList byRecording, byClosing;
    } cases[] = {
        {"it came with the camera",
         [&] {
             test.camera(2).change({{"recorded", true}, {"recordedRange", QVariantList{0, 99}}});
         },
         {"Camera 2: 100 frames"},
         {}},
        {"all record", [&] { shoot(50); }, {one, two, three}, {one, two, three}},
        {"one uses another partition", [&] { test.camera(1).setPartition(2); }, {two, three}, {one, two, three}},
        {"and records there",
         [&] { shoot(20); },
         {"Camera 1: 20 frames in partition 2", "Camera 2: 20 frames", "Impact: 1200 frames"},
         {one, "Camera 1: 20 frames in partition 2", "Camera 2: 20 frames", "Impact: 1200 frames"}},
        {"the other partition again",
         [&] { shoot(50), save(1), test.camera(1).setPartition(1); },
         {one, two, three},
         {one, two, three}},
        {"a part of them is chosen and saved", [&] { select(3, 10, 20), save(3); }, {one, two}, {one, two}},
        {"a smaller one is chosen", [&] { select(3, 11, 12); }, {one, two}, {one, two}},
        {"a larger one is chosen", [&] { select(3, 10, 21); }, {one, two, three}, {one, two, three}},
        {"one is saved, and there", [&] { save(1); }, {two, three}, {two, three}},
        {"it is called as another",
         [&] { test.camera(1).set(&CameraState::name, "Camera 2"); },
         {alike, three},
         {alike, three}},
        {"one is disconnected", [&] { test.camera(3).disconnect(); }, {alike}, {alike, three}},
        {"one vanishes",
         [&] {
             plant(2, "*", {{}, 0, true});
         },
         {},
         {alike, three}},
        {"they come back", [&] { plant(2, "*", {}), test.camera(3).connect(); }, {alike, three}, {alike, three}},
        {"one is erased", [&] { test.doc(2)->control().eraseRecordedData(0); }, {three}, {three}},
        {"all are deleted", [&] { host.docManager().deleteAllDocs(0, 0); }, {}, {three}},
        {"a search finds them",
         [&] {
             host.cameras().search({}), host.docManager().connectDocs({1, 2, 3});
         },
         {three},
         {three}},
    };
    for (const auto& row : cases) {
        row.happens();
        const auto told = [this](const HeldRecordings& lost) {
            return host.unsavedGuard().lines(lost).join("; ").toStdString();
        };
        const DocKeyList connected = host.cameras().keysOf(&CameraState::connected);
        const HeldRecordings held = heldRecordings(host.cameras(), connected);
        EXPECT_EQ(told(lostByRecording(held)), row.byRecording.join("; ").toStdString()) << row.what;
        EXPECT_EQ(told(lostByClosing(held)), row.byClosing.join("; ").toStdString()) << row.what;
    }
    EXPECT_EQ(messages(),
              "Camera 2: 50 frames were erased. | "
              "Images that nobody has saved are out of reach until a search:\nImpact: 1500 frames");
}

TEST_F(UnsavedImages, AreAskedAboutOnceBeforeAShoot) {
    shoot(50);
    const QList<QStringList> all{{"Camera 1: 50 frames", "Camera 2: 50 frames", "Impact: 1500 frames"}};
    const std::function<void()> roads[] = {[this] { host.recorder().startRecReady(); },
                                           [this] { host.recorder().press(); }};
    for (const auto& arm : roads) {
        ends = 0;
        arm();
        EXPECT_EQ(asked(), all);
        EXPECT_EQ(states(), "0 0 0 - 0");
        EXPECT_EQ(ends, 1) << "whoever follows the recording hears that there is none";
        EXPECT_EQ(recorded(1), "0..49 trigger 0");
        test.desk.answers = {Yes};
        arm();
        pass(600);
        EXPECT_EQ(asked(), all);
        EXPECT_EQ(states(), "2 2 2 - 2");
        host.recorder().triggerRecording();
        pass(50);
        host.recorder().stopRecording();
        QCoreApplication::processEvents();
        EXPECT_EQ(asked().size(), 0) << "never between arming and the trigger";
        host.appStatus().enterMode(zeb::LiveMode);
    }
    for (const DOCKEY key : {1, 2, 3}) save(key);
    host.recorder().startRecReady();
    EXPECT_EQ(states(), "2 2 1 - 1");
    EXPECT_EQ(asked().size(), 0) << "all are saved";
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
    test.desk.whileStanding = [this] { host.setRig(Rig::standard(1)); };
    host.recorder().startRecReady();
    QCoreApplication::processEvents();
    EXPECT_EQ(states(), "0 - 0") << "the cameras are no more";
}

TEST_F(UnsavedImages, CannotBeErasedWhileARecordingGoesOn) {
    host.docManager().disconnectDocs({3});
    shoot(50);
    host.docManager().connectDocs({3});
    test.camera(3).change({{"recorded", true}});
    EXPECT_TRUE(test.doc(3)->control().hasRecordedData());
    host.docManager().disconnectDocs({3});
    test.desk.answers = {Yes};
    armAll();
    host.docManager().connectDocs({3});
    host.recorder().triggerRecording();
    test.camera(1).stop();
    for (const DOCKEY key : {1, 2, 3}) {
        EXPECT_FALSE(test.doc(key)->control().hasRecordedData()) << key << ": part of it or not";
        EXPECT_THROW(test.doc(key)->control().eraseRecordedData(0), std::runtime_error) << key;
    }
}

TEST_F(UnsavedImages, AreToldOfWhenTheirCameraVanishes) {
    shoot(50);
    save(1);
    host.docManager().disconnectDocs({2});
    for (const DOCKEY key : {1, 2}) plant(key, "*", {{}, 0, true});
    pass(1);
    EXPECT_EQ(messages(),
              "Camera 1: the camera has disappeared.\n"
              "Camera 2: the camera has disappeared. 50 frames of it are not saved.");
}

}  // namespace
