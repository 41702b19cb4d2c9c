#include "Camera.h"
#include "CameraWindow.h"
#include "CameraWindows.h"
#include "CommandLine.h"
#include "FaultMenu.h"
#include "HostPages.h"
#include "MenuInput.h"
#include "MessageBoxes.h"
#include "ScenarioDialogs.h"
#include "ScenarioError.h"
#include "ScenarioMenu.h"
#include "ScenarioRunner.h"
#include "Simulator.h"
#include "Until.h"
#include "ViewerWindow.h"

#include <QAction>
#include <QDialog>
#include <QTableWidget>
#include <QTemporaryDir>
#include <QTimer>

#include <gtest/gtest.h>

#include <functional>

namespace {

class FirstMinute : public testing::Test {
protected:
    FirstMinute() {
        initHostPages();
        simulator.window().show();
    }

    void choose(const char* path) { chooseEntry(simulator.window(), path); }
    /// Does some work as soon as a scenario runs.
    void onceItRuns(const std::function<void()>& work) {
        QObject::connect(&poll, &QTimer::timeout, [this, work] {
            if (ScenarioRunner::isRunning()) {
                poll.stop();
                poll.disconnect();
                work();
            }
        });
        poll.start(1);
    }
    Camera& camera(DOCKEY key) { return *host.cameras().find(key); }
    QStringList titles() {
        images.follow();
        QStringList list;
        for (const Camera* one : host.cameras().connected()) {
            list << images.find(one->key())->windowTitle();
        }
        return list;
    }

    QTemporaryDir folder;
    const CommandLine line =
        CommandLine::parse({"zebsim", "--rig", "2", "--plugin", WREN_LIBRARY, "--prefs", folder.filePath("p.ini")});
    Simulator simulator{line};
    SimHost& host = simulator.host();
    CameraWindows& images = simulator.window().images();
    const ScenarioMenu scenarios{simulator};
    QTimer poll;
};

TEST_F(FirstMinute, AFaultOfTheWindowReachesTheCameraAndIsLifted) {
    camera(1).change({{"connected", true}, {"name", "Gate"}});
    images.follow();
    auto& menu = *images.find(1)->findChild<FaultMenu*>();
    const auto press = [&](const QString& text) {
        Q_EMIT menu.aboutToShow();
        findEntry(menu.actions(), text).trigger();
    };
    EXPECT_EQ(titles(), QStringList("Gate"));
    press("does not answer");
    EXPECT_THROW(camera(1).setRecordRate(500), std::exception);
    host.faults().plant(1, "setResolution", host.faults().planted(1).value("*"));
    EXPECT_EQ(titles(), QStringList("Gate: does not answer, refuses setResolution"));
    press("does not answer");
    EXPECT_NO_THROW(camera(1).setRecordRate(500));
    EXPECT_EQ(titles(), QStringList("Gate: refuses setResolution")) << "the other one stays";
    press("has vanished");
    EXPECT_EQ(host.cameras().find(1), nullptr);
    choose("Camera > Lift all faults");
    EXPECT_EQ(titles(), QStringList("Gate"));
}

TEST_F(FirstMinute, TheListOfKeysHoldsThoseThatWork) {
    QStringList keys;
    ModalWatcher watcher;
    QObject::connect(&watcher, &ModalWatcher::stands, [&](QDialog* dialog) {
        const auto& list = *dialog->findChild<QTableWidget*>();
        for (int row = 0; row < list.rowCount(); ++row) {
            keys << list.item(row, 0)->text() + ": " + list.item(row, 1)->text();
        }
        dialog->accept();
    });
    choose("Help > Keys");
    for (const char* key : {"F12: Record", "Ctrl+Shift+S: Save layout", "F1: Keys", "Alt+F: Menu File"}) {
        EXPECT_TRUE(keys.contains(key)) << key << " in " << keys.join(", ").toStdString();
    }
}

TEST_F(FirstMinute, CamerasWithUnsavedImagesStayWhenTheUserSaysNo) {
    camera(1).change(
        {{"connected", true}, {"name", "Gate"}, {"recorded", true}, {"recordedRange", QVariantList{0, 63}}});
    camera(1).keep(1, camera(1).recording());
    ScenarioDialogs dialogs;
    dialogs.queueAnswers({"no"});
    choose("Scenarios > Connect and set");
    QVariantList asked;
    ASSERT_TRUE(until([&] { return !(asked += dialogs.takeMessages()).isEmpty(); }));
    EXPECT_EQ(asked.first().toMap().value("text"),
              "Cameras hold images that nobody has saved. Replace the cameras all the same?\nGate: 64 frames");
    EXPECT_FALSE(ScenarioRunner::isRunning());
    EXPECT_EQ(host.cameras().all().size(), 2U);
    camera(1).change({{"recordState", zeb::RecordReady}});
    try {
        choose("Scenarios > Connect and set");
        ADD_FAILURE() << "a camera is armed";
    } catch (const ScenarioError& refused) {
        EXPECT_EQ(refused.text(), "the entry \"Connect and set\" is greyed: Cameras are armed or record.");
    }
}

TEST_F(FirstMinute, EachScenarioRunsToItsEndAndLeavesTheProgramAsItWas) {
    QStringList told;
    ModalWatcher watcher;
    QObject::connect(&watcher, &ModalWatcher::stands, [&](QDialog* dialog) {
        const QString text = dialog->property(MessageBoxes::TextProperty).toString();
        if (text.startsWith("The scenario")) {
            told << text;
            dialog->accept();
        }
    });
    // The page asks at its own pace, whatever the clock does.
    host.prefs().setValue("wren/table/interval", 50);
    simulator.clock().setSpeed(10);
    const QVariant target = host.prefs().value("export/dir");
    int runs = 0;
    for (const char* path :
         {"Scenarios > Connect and set", "Scenarios > Record and save", "Scenarios > A camera that fails"}) {
        onceItRuns([&] {
            ++runs;
            EXPECT_THROW(choose("Scenarios > Record and save"), ScenarioError) << "one runs";
        });
        const int before = runs;
        choose(path);
        ASSERT_TRUE(until([&] { return runs > before && !ScenarioRunner::isRunning(); })) << path;
        ASSERT_EQ(told.join("").toStdString(), "");
    }
    EXPECT_EQ(host.prefs().value("export/dir"), target);
    EXPECT_EQ(simulator.clock().speed(), 10);
    EXPECT_TRUE(faultyCameras(host).isEmpty());
}

TEST_F(FirstMinute, ClosingTheProgramEndsAScenario) {
    onceItRuns([&] { simulator.window().close(); });
    EXPECT_EQ(simulator.run([&] { choose("Scenarios > A camera that fails"); }), 0);
    EXPECT_FALSE(ScenarioRunner::isRunning());
}

}  // namespace
