#include "Camera.h"
#include "CameraWindows.h"
#include "ComeToFront.h"
#include "CommandLine.h"
#include "FileNames.h"
#include "Files.h"
#include "FramePicture.h"
#include "ModalWatcher.h"
#include "RigFile.h"
#include "SaveDialog.h"
#include "SaveJob.h"
#include "SaveNames.h"
#include "SaveProgress.h"
#include "ScenarioDialogs.h"
#include "Simulator.h"
#include "ViewerWindow.h"
#include "support/StubPlugin.h"

#include <QAction>
#include <QClipboard>
#include <QComboBox>
#include <QDir>
#include <QGuiApplication>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <QProgressBar>
#include <QPushButton>
#include <QTableWidget>
#include <QTemporaryDir>

#include <gmock/gmock.h>

#include <limits>

namespace {

/// Two cameras with three frames each to keep.
class AppSaving : public testing::Test {
protected:
    AppSaving() {
        comeToFront(simulator.window());
        for (DOCKEY key = 1; key <= 2; ++key) {
            host.cameras().find(key)->change({{"connected", true}, {"recorded", true}, {"recordedTrigger", 10}});
            host.cameras().find(key)->change(
                {{"resolution", QVariantList{64, 64}}, {"selectedRange", QVariantList{9, 11}}});
        }
        host.prefs().setValue("save/folder", folder.filePath("out"));
        host.prefs().setValue("snapshot/folder", folder.filePath("snap"));
    }

    QStringList filesIn(const char* name) const {
        return QDir(folder.filePath(name)).entryList(QDir::Files, QDir::Name);
    }
    QAction& action(const char* name) { return *simulator.window().findChild<QAction*>(name); }
    QStringList results() {
        return SaveScripting::results([] { return false; });
    }
    QStringList messages() {
        QStringList texts;
        for (const QVariant& message : dialogs.takeMessages()) {
            texts << message.toMap().value("text").toString();
        }
        return texts;
    }

    QTemporaryDir folder;
    const CommandLine line = CommandLine::parse({"zebsim", "--rig", "2", "--prefs", folder.filePath("p.ini")});
    Simulator simulator{line};
    SimHost& host = simulator.host();
    ScenarioDialogs dialogs;
};

TEST_F(AppSaving, WritesWhatTheDialogShows) {
    host.cameras().find(2)->change({{"name", "<b>%2</b>"}});
    ModalWatcher watcher;
    QStringList row;
    const auto once = QObject::connect(&watcher, &ModalWatcher::stands, [&](QDialog* dialog) {
        const auto* table = dialog->findChild<QTableWidget*>("cameras");
        for (int column = 0; table && column < 4; ++column) {
            row << table->item(1, column)->text();
        }
        if (table) {
            host.saveFiles();
        }
    });
    dialogs.saves().order({{"format", "jpeg"}});
    host.saveFiles();
    QObject::disconnect(once);
    EXPECT_TRUE(host.saver().isSaving()) << "it goes on when the dialog is gone";
    host.saveFiles();
    const QString refused = "Images are being saved already.";
    EXPECT_EQ(messages(), QStringList({refused, refused})) << "the dialog and the save are each alone";
    const QString target = QDir::toNativeSeparators(folder.filePath("out"));
    const QStringList lines = {"Camera 1: 3 frames saved in " + target, "<b>%2</b>: 3 frames saved in " + target};
    EXPECT_EQ(results(), lines);
    for (const QString& text : lines) {
        EXPECT_TRUE(simulator.log().since(0).contains(QString("\"%1\"").arg(text))) << "for later";
    }
    EXPECT_FALSE(host.saver().isSaving());
    EXPECT_EQ(row, QStringList({"<b>%2</b>", "-1", "1", "3"}));
    EXPECT_EQ(filesIn("out").size(), 6);
    EXPECT_EQ(host.prefs().value("save/format"), "jpeg");
}

TEST_F(AppSaving, TellsWhyThereIsNothingToSave) {
    host.prefs().setValue("save/folder", folder.filePath("p.ini/below"));
    dialogs.saves().order({});
    host.saveLayoutFiles();
    host.setRig(standardRig(1));
    host.saveFiles();
    EXPECT_EQ(messages(), QStringList({"There can't be a folder " + folder.filePath("p.ini/below") + ".",
                                       "No connected camera has recorded images."}));
    EXPECT_FALSE(host.saver().isSaving());
}

TEST_F(AppSaving, OffersAnotherFolderThanOneWithFiles) {
    ASSERT_TRUE(QDir(folder.path()).mkpath("out/older"));
    write(folder.filePath("out/Gate.mp4"), {});
    ModalWatcher watcher;
    QObject::connect(&watcher, &ModalWatcher::stands, [&](QDialog* dialog) {
        auto* button = dialog->findChild<QPushButton*>("newSubfolder");
        auto* field = dialog->findChild<QLineEdit*>("folder");
        EXPECT_EQ(button->parentWidget()->findChild<QLabel*>()->text(), "Files that are in this folder already: 1");
        button->click();
        EXPECT_THAT(field->text().toStdString(), testing::MatchesRegex(".*/out/[0-9]+-[0-9]+"));
        EXPECT_FALSE(button->isVisible());
        field->setText("");
        EXPECT_FALSE(button->isVisible()) << "no folder is not the present one";
        dialog->reject();
    });
    host.saveFiles();
    const QDateTime time({2026, 3, 1}, {9, 5});
    EXPECT_EQ(newSubfolder("/out", time), "/out/20260301-090500");
    EXPECT_EQ(newSubfolder("/out/20260228-235959", time), "/out/20260301-090500") << "they do not nest";
}

TEST_F(AppSaving, TellsOfCamerasThatAreNotThere) {
    for (DOCKEY key = 1; key <= 2; ++key) {
        host.cameras().find(key)->keep(1, host.cameras().find(key)->recording());
    }
    Q_EMIT host.events().shootEnded();
    host.faults().plant(2, "*", {{}, 0, true});
    const QString lost = "Camera 2: the camera has disappeared. Its recording is not saved.";
    ModalWatcher watcher;
    QStringList first;
    QObject::connect(&watcher, &ModalWatcher::stands, [&](QDialog* dialog) {
        const auto* table = dialog->findChild<QTableWidget*>("cameras");
        if (table) {
            first << table->item(0, 0)->text();
        }
    });
    dialogs.saves().order({});
    host.saveFiles();
    EXPECT_EQ(first, QStringList(lost)) << "before it begins";
    const auto* progress = simulator.window().findChild<SaveProgress*>();
    EXPECT_TRUE(until([progress] { return progress->isFinished(); }));
    EXPECT_EQ(progress->findChild<QLabel*>()->text(), "Not everything is saved.");
    EXPECT_THAT(results(), testing::ElementsAre(lost, testing::Property(&QString::toStdString,
                                                                        testing::StartsWith("Camera 1: 3 frames"))));
    const QString none = "No connected camera has recorded images.\n";
    host.cameras().find(1)->set(&CameraState::connected, false);
    host.saveFiles();
    EXPECT_EQ(messages().last(), none + lost) << "the other one is saved";
    host.cameras().find(1)->change({{"selectedRange", QVariantList{8, 11}}});
    host.saveFiles();
    EXPECT_EQ(messages().last(), none + "Camera 1: the camera was disconnected. Its recording is not saved.\n" + lost);
}

TEST_F(AppSaving, TellsWhichFramesAreNotOfTheLastRecording) {
    Camera& first = *host.cameras().find(1);
    Camera& second = *host.cameras().find(2);
    const auto shoot = [&](Camera& camera) {
        camera.keep(1, camera.recording());
        Q_EMIT host.events().shootEnded();
    };
    shoot(first);
    shoot(second);
    second.set(&CameraState::partitions, 2);
    second.setPartition(2);
    second.change({{"recorded", true}, {"recordedRange", QVariantList{0, 2}}});
    const QString away = "Camera 2: the last recording lies in partition 1. It is not saved.";
    const QString earlier = "Camera 1 (earlier recording)";
    dialogs.saves().order({});
    host.saveLayoutFiles();
    EXPECT_EQ(results(),
              QStringList({away, "Layout with " + earlier + ", Camera 2 (earlier recording): 3 frames saved in " +
                                     QDir::toNativeSeparators(folder.filePath("out"))}));
    const QImage picture(folder.filePath("out/Layout_00000.png"));
    const QImage tile = picture.copy(60, 0, 360, 360).convertToFormat(QImage::Format_RGB32);
    EXPECT_EQ(tile, drawFrame({earlier, {64, 64}, -1, -1000, SensorNoise::of(first), {}}, {360, 360}))
        << "where its number stands too";
    EXPECT_EQ(lostByClosing(heldRecordings(host.cameras())).size(), 2U) << "a layout shows less than they hold";
}

TEST_F(AppSaving, ShowsTheProgressOfMoreFramesThanAnIntCounts) {
    for (DOCKEY key = 1; key <= 2; ++key) {
        host.cameras().find(key)->change({{"recordedRange", QVariantList{0, 2000000000}}});
        host.cameras().find(key)->change({{"selectedRange", QVariantList{key == 1 ? 2000000000 : 0, 2000000000}}});
    }
    FileNames names;
    SaveOrders orders{folder.filePath("out"), saveFormat("jpeg"), tracksOfEach(saveSources(host.cameras(), names)), {}};
    orders.tracks.push_back(orders.tracks.back());
    SaveJob job(host.cameras(), orders, [](const QString&) { return std::numeric_limits<qint64>::max(); });
    const SaveProgress progress(job, nullptr);
    ASSERT_FALSE(job.start());
    EXPECT_TRUE(until([&job] { return !job.outcomes().isEmpty(); }));
    const auto* bar = progress.findChild<QProgressBar*>();
    EXPECT_EQ(bar->value(), 0) << "one frame of four thousand million";
    EXPECT_GT(bar->maximum(), 0);
}

TEST_F(AppSaving, EndsWithTheApplication) {
    QDir(folder.path()).mkdir("out");
    const QString old = folder.filePath("out/Camera 1_-00001.png");
    write(old, "old");
    dialogs.saves().order({});
    ModalWatcher watcher;
    QObject::connect(&watcher, &ModalWatcher::stands, [&](QDialog* dialog) {
        const auto* box = qobject_cast<QMessageBox*>(dialog);
        if (box == nullptr) {
            return;
        }
        EXPECT_EQ(box->defaultButton()->text(), "Skip camera");
        simulator.quit();
    });
    simulator.run([&] { host.saveFiles(); });
    EXPECT_EQ(filesIn("out").size(), 1);
    EXPECT_EQ(contentOf(old), "old") << "a question that nobody has answered overwrites nothing";
}

TEST_F(AppSaving, IsCancelledByItsButtonAlone) {
    host.cameras().find(2)->change({{"selectedRange", QVariantList{0, 2000}}});
    dialogs.saves().order({});
    host.saveFiles();
    auto* progress = simulator.window().findChild<SaveProgress*>();
    auto* button = progress->findChild<QPushButton*>();
    for (const int key : {Qt::Key_Escape, Qt::Key_Return}) {
        QKeyEvent press(QEvent::KeyPress, key, Qt::NoModifier);
        QCoreApplication::sendEvent(progress, &press);
    }
    progress->close();
    EXPECT_TRUE(progress->isVisible() && messages().isEmpty());
    dialogs.queueAnswers({"Go on", "Stop"});
    button->click();
    EXPECT_TRUE(host.saver().isSaving());
    button->click();
    EXPECT_EQ(messages().size(), 2);
    EXPECT_THAT(results().last().toStdString(), testing::MatchesRegex("Camera 2: cancelled, .*"));
}

TEST_F(AppSaving, KeysMeanThePluginInFront) {
    StubPlugin plugin;
    QStringList raised;
    QObject::connect(&plugin, &StubPlugin::signalSaveFile, [&] { raised << "file"; });
    QObject::connect(&plugin, &StubPlugin::signalSaveLayout, [&] { raised << "layout"; });
    QObject::connect(&plugin, &StubPlugin::signalStartAutoUpdate, [&] { raised << "start"; });
    QObject::connect(&plugin, &StubPlugin::signalRecord, [&] { raised << "record"; });
    plugin.dialog = std::make_unique<QDialog>();
    host.appStatus().registerPlugin(&plugin);
    EXPECT_FALSE(action("save").isEnabled()) << "there is nothing recorded to be seen";
    comeToFront(*plugin.dialog);
    host.updates().request();
    EXPECT_TRUE(until([this] { return action("record").isEnabled(); }));
    action("record").trigger();
    EXPECT_EQ(host.recorder().getRecordingState(), zeb::RecordLive) << "the plug-in decides";
    host.appStatus().enterMode(zeb::MemoryMode);
    action("save").trigger();
    action("saveLayout").trigger();
    EXPECT_EQ(raised, QStringList({"record", "file", "layout"}));
    comeToFront(simulator.window());
    dialogs.saves().order({});
    action("saveLayout").trigger();
    results();
    EXPECT_EQ(raised, QStringList({"record", "file", "layout", "start"})) << "its timer rests while images are saved";
    EXPECT_EQ(filesIn("out"), QStringList({"Layout_00000.png", "Layout_00001.png", "Layout_00002.png"}));
    host.appStatus().unregisterPlugin(&plugin);
}

TEST_F(AppSaving, TakesSnapshots) {
    QGuiApplication::clipboard()->clear();
    host.saver().snapShot(1);
    EXPECT_EQ(messages(), QStringList("There is no image to take."));
    host.cameras().find(1)->change({{"selected", true}, {"name", "Gate/1"}});
    simulator.window().images().showNow();
    host.saver().snapShot(1);
    EXPECT_TRUE(QGuiApplication::clipboard()->image().isNull());
    host.saver().snapShot(3);
    host.saver().snapShot(2);
    EXPECT_EQ(QGuiApplication::clipboard()->image().size(), QSize(64, 64));
    ASSERT_EQ(filesIn("snap").size(), 2);
    EXPECT_THAT(filesIn("snap").first().toStdString(), testing::MatchesRegex("Gate_1_[0-9]+-[0-9]+_001.png"));
    const QImage first(folder.filePath("snap/" + filesIn("snap").first()));
    EXPECT_EQ(first.size(), QSize(64, 64));
    EXPECT_TRUE(first.text("Description").startsWith("{\"camera\":\"Gate/1\",\"rate\":1000,\"shutter\":1000,"));
    EXPECT_TRUE(first.textKeys().contains("frame") && !first.textKeys().contains("time")) << "live has no trigger";
    host.prefs().setValue("snapshot/folder", folder.filePath("p.ini"));
    host.saver().snapShot(1);
    EXPECT_THAT(messages().join("|").toStdString(), testing::StartsWith(folder.filePath("p.ini").toStdString()));
}

}  // namespace
