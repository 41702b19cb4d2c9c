#include "AppWindows.h"
#include "Camera.h"
#include "CommandLine.h"
#include "LogDock.h"
#include "ScenarioDialogs.h"
#include "Simulator.h"
#include "Until.h"
#include "ViewerWindow.h"
#include "ZebSupportFile.h"

#include <QAction>
#include <QApplication>
#include <QDialog>
#include <QPlainTextEdit>
#include <QRegularExpression>
#include <QScrollBar>
#include <QTabWidget>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>

#include <gtest/gtest.h>

namespace {

class ViewerTest : public testing::Test {
protected:
    QTemporaryDir folder;
    const CommandLine line =
        CommandLine::parse({"zebsim", "--rig", "2", "--prefs", folder.filePath("p.ini"), "--style", "dark"});
    Simulator simulator{line};
};

TEST_F(ViewerTest, DrawsItselfWhileAllThatPluginsAskFails) {
    SimHost& host = simulator.host();
    host.faults().plant(FaultPlan::Host, "*", Fault{"no answer", 0, false});
    host.cameras().find(1)->change({{"connected", true}});
    host.prefs().setValue("env/style", "light");
    const ScenarioDialogs dialogs;
    QTimer::singleShot(0, &simulator.window(), [&] {
        host.updates().request();
        QCoreApplication::processEvents();
        auto* record = simulator.window().findChild<QAction*>("record");
        EXPECT_TRUE(record->isEnabled());
        record->trigger();
        EXPECT_EQ(host.recorder().state(), zeb::RecordReady);
        host.messages().tell(Message::Info, "a box");
        simulator.quit();
    });
    EXPECT_EQ(simulator.run([] {}), 0);
    EXPECT_EQ(simulator.window().property("style"), "light");
}

TEST_F(ViewerTest, TheLogIsFollowedUntilSomebodyReadsIt) {
    const auto log = [](const QByteArray& text, int lines) {
        for (int i = 0; i < lines; ++i) {
            qInfo("%s", text.constData());
            QCoreApplication::processEvents();
        }
    };
    // How much of the last line the lower bar covers depends on the height.
    for (int height = 110; height < 130; ++height) {
        LogDock dock(simulator.log(), simulator.host().journal(), nullptr);
        dock.resize(900, height);
        dock.show();
        const auto* view = qobject_cast<QPlainTextEdit*>(dock.findChild<QTabWidget*>()->currentWidget());
        QScrollBar* bar = view->verticalScrollBar();
        log("a line", 20);
        log(QByteArray(2000, 'x'), 1);
        log("a line", 3);
        EXPECT_EQ(bar->value(), bar->maximum()) << "height " << height;
        bar->setValue(5);
        log("a line", 3);
        EXPECT_EQ(bar->value(), 5);
    }
}

TEST(CommandLine, TakesItsSwitches) {
    const CommandLine line = CommandLine::parse({"zebsim", "--no-table", "--scripted-visa"});
    EXPECT_TRUE(!line.openTable && line.scriptedVisa);
    EXPECT_TRUE(CommandLine::parse({"zebsim"}).openTable);
}

TEST_F(ViewerTest, ALineOfTheLogIsOneLine) {
    const quint64 mark = simulator.log().count();
    qWarning("a\nb\u001b[1m\u2028c");
    EXPECT_EQ(simulator.log().since(mark), QStringList("a\\nb\\u001b[1m\\u2028c"));
    ZebSupportFile file;
    simulator.host().cameras().find(1)->change({{"name", "Gate\nERROR"}, {"alerts", QStringList{"hot\nAlert: x"}}});
    simulator.host().prefs().setValue("support/dir", "a\nb = c");
    simulator.host().prepareSupportFile(file);
    const QString last = QString::fromUtf8(file.files.value("operation.log")).section('\n', -1);
    EXPECT_TRUE(
        QRegularExpression(R"(^\d{4}-\d\d-\d\d [\d:.]{12} WARN a\\nb\\u001b\[1m\\u2028c$)").match(last).hasMatch())
        << last.toStdString();
    EXPECT_TRUE(file.files.value("preferences.txt").contains("\nsupport/dir = a\\nb = c\n"));
}

TEST_F(ViewerTest, EndsTheApplicationWhenItIsClosed) {
    Camera& camera = *simulator.host().cameras().find(1);
    camera.change({{"connected", true}, {"recordState", zeb::RecordReady}});
    const auto closeBy = [&](Qt::Key key) {
        ModalWatcher watcher;
        QObject::connect(&watcher, &ModalWatcher::stands, [key](QDialog* box) { QTest::keyClick(box, key); });
        simulator.window().close();
        return simulator.host().isApplicationClosing();
    };
    EXPECT_FALSE(closeBy(Qt::Key_Return)) << "a camera is armed, and Enter leaves it";
    camera.change({{"recordState", zeb::RecordLive}, {"recorded", true}, {"recordedRange", QVariantList{0, 63}}});
    camera.keep(1, camera.recording());
    const quint64 mark = simulator.log().count();
    EXPECT_FALSE(closeBy(Qt::Key_Return) || closeBy(Qt::Key_Escape)) << "nobody has saved what it has recorded";
    EXPECT_EQ(simulator.log().since(mark).filter(R"(Unsaved images are kept: ("Camera 1: 64 frames"))").size(), 2);
    camera.change({{"recorded", false}});
    simulator.host().flags().set("IsBgConverting", true);
    ASSERT_FALSE(closeBy(Qt::Key_Return)) << "a conversion is not complete";
    simulator.host().flags().set("IsBgConverting", false);
    camera.change({{"recorded", true}});
    ScenarioDialogs dialogs;
    EXPECT_EQ(simulator.run([&] { simulator.window().close(); }), 0);
    EXPECT_EQ(dialogs.takeMessages().first().toMap().value("text"),
              "Cameras hold images that nobody has saved. Close the viewer all the same?\nCamera 1: 64 frames");
    EXPECT_TRUE(simulator.host().isApplicationClosing());
}

TEST_F(ViewerTest, TakesAStandingQuestionForRefusedWhenItIsClosed) {
    bool agreed = true;
    simulator.run([&] {
        QTimer::singleShot(0, &simulator.window(), [&] { simulator.window().close(); });
        agreed = simulator.host().confirm("Sure?");
    });
    EXPECT_FALSE(agreed);
}

TEST_F(ViewerTest, ClosesWithAPageInFront) {
    for (const bool isSave : {true, false}) {
        Simulator closed{line};
        SimHost& host = closed.host();
        host.prefs().setValue("alert/unsavedrecording", false);
        host.appStatus().enterMode(zeb::MemoryMode);
        host.cameras().find(1)->change({{"connected", true}, {"recorded", true}});
        QStringList pages;
        ModalWatcher watcher;
        QObject::connect(&watcher, &ModalWatcher::stands, [&](QDialog* page) {
            pages << page->metaObject()->className();
            closed.window().close();
        });
        EXPECT_EQ(closed.run([&] { isSave ? host.saveFiles() : closed.windows().openMedia(); }), 0);
        EXPECT_EQ(pages, QStringList(isSave ? "GUI_SaveDialog" : "GUI_WebViewDialog"));
        EXPECT_TRUE(host.isApplicationClosing());
    }
}

TEST_F(ViewerTest, ShowsAndSwitchesTheModeAndTheStyle) {
    const auto choice = [&](const char* name) { return simulator.window().findChild<QAction*>(name); };
    EXPECT_TRUE(choice("mode0")->isChecked());
    EXPECT_TRUE(choice("dark")->isChecked());
    choice("mode1")->trigger();
    EXPECT_EQ(simulator.host().getOperatingMode(), zeb::MemoryMode);
    choice("light")->trigger();
    EXPECT_EQ(simulator.host().prefs().value("env/style"), "light");
    simulator.host().appStatus().enterMode(zeb::FileMode);
    EXPECT_TRUE(choice("mode2")->isChecked()) << "a change from elsewhere shows as well";
}

TEST_F(ViewerTest, RecordsByItsOwnKey) {
    SimHost& host = simulator.host();
    const auto key = [&](const char* name) { return simulator.window().findChild<QAction*>(name); };
    const auto settle = [&] { EXPECT_TRUE(until([&host] { return !host.updates().isPending(); })); };
    settle();
    const int usual = QApplication::doubleClickInterval();
    QApplication::setDoubleClickInterval(0);
    EXPECT_FALSE(key("record")->isEnabled()) << "no camera is connected";
    host.cameras().find(1)->connect();
    host.updates().request();
    settle();
    host.setTriggerTesting(true);
    key("record")->trigger();
    settle();
    EXPECT_EQ(key("record")->text(), "Trigger");
    key("record")->trigger();
    host.setTriggerTesting(false);
    key("record")->trigger();
    settle();
    EXPECT_EQ(key("record")->text(), "Stop");
    QApplication::setDoubleClickInterval(3600000);
    key("record")->trigger();
    EXPECT_EQ(host.recorder().getRecordingState(), zeb::RecordRecording) << "the second of a double press";
    QApplication::setDoubleClickInterval(0);
    host.cameras().find(1)->set(&CameraState::recordState, zeb::RecordReady);
    key("record")->trigger();
    EXPECT_EQ(host.recorder().getRecordingState(), zeb::RecordReady) << "it has not shown that";
    host.cameras().find(1)->set(&CameraState::recordState, zeb::RecordRecording);
    ScenarioDialogs dialogs;
    dialogs.queueAnswers({"no"});
    key("disconnectAll")->trigger();
    EXPECT_EQ(host.docManager().getConnectedDocKeys(), DocKeyList{1}) << "asked first";
    EXPECT_EQ(dialogs.takeMessages().first().toMap().value("text"),
              "Cameras are armed or recording. Disconnect all the same?\nCamera 1: records");
    simulator.clock().setSpeed(1000);
    EXPECT_TRUE(until([&host] { return host.isMemoryMode(); }));
    EXPECT_EQ(host.cameras().find(1)->recording()->frameCount(), 8192U);
    EXPECT_FALSE(key("record")->isEnabled());

    host.appStatus().enterMode(zeb::LiveMode);
    key("disconnectAll")->trigger();
    EXPECT_TRUE(host.docManager().getConnectedDocKeys().isEmpty());
    host.cameras().find(1)->connect();
    host.updates().request();
    settle();
    key("record")->trigger();
    settle();
    EXPECT_FALSE(key("mode1")->isEnabled()) << "nobody could stop the cameras from there";
    const quint64 mark = simulator.log().count();
    key("disconnectAll")->trigger();
    EXPECT_TRUE(simulator.log().since(mark).join("").contains("Camera 1: is armed"));
    EXPECT_TRUE(until([&] { return key("record")->text() == "Record"; })) << "nothing is left of it";
    EXPECT_TRUE(key("mode1")->isEnabled());
    QApplication::setDoubleClickInterval(usual);
}

}  // namespace
