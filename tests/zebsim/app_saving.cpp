#include "Camera.h"
#include "CameraWindows.h"
#include "ComeToFront.h"
#include "CommandLine.h"
#include "Files.h"
#include "FramePicture.h"
#include "GUI_SaveDialog.h"
#include "HostPages.h"
#include "ModalWatcher.h"
#include "PageScript.h"
#include "PlanDialog.h"
#include "RigFile.h"
#include "SaveJob.h"
#include "SaveProgress.h"
#include "SaveTexts.h"
#include "ScenarioDialogs.h"
#include "Simulator.h"
#include "ViewerWindow.h"
#include "support/StubPlugin.h"

#include <QAction>
#include <QClipboard>
#include <QDir>
#include <QGuiApplication>
#include <QKeyEvent>
#include <QLabel>
#include <QMessageBox>
#include <QProgressBar>
#include <QPushButton>
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
        initHostPages();
        host.prefs().setValue("export/dir", folder.filePath("out"));
        host.prefs().setValue("export/saveinf", false);
        host.prefs().setValue("layout/dir", folder.filePath("out"));
        host.prefs().setValue("snap/dir", folder.filePath("snap"));
    }

    QStringList filesIn(const char* name) const {
        return QDir(folder.filePath(name)).entryList(QDir::Files, QDir::Name);
    }
    QAction& action(const char* name) { return *simulator.window().findChild<QAction*>(name); }
    /// What a script answers in the page that stands.
    static QString inPage(const QString& script) {
        return PageScript(script).run(ScenarioDialogs::pageOfStanding()).toString();
    }
    static QString rowInPage(int row) {
        return inPage(
            QString("Array.from(saveTargets.rows()[%1].children).slice(1, 4).map(cell => cell.textContent).join('|')")
                .arg(row));
    }
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
    QString row;
    const auto once = QObject::connect(&watcher, &ModalWatcher::stands, [&](QDialog* dialog) {
        if (qobject_cast<GUI_SaveDialog*>(dialog) != nullptr) {
            row = rowInPage(1);
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
    EXPECT_EQ(row.toStdString(), QString::fromUtf8("<b>%2</b>|-1 … 1|3").toStdString());
    EXPECT_EQ(filesIn("out").size(), 6);
    EXPECT_EQ(host.prefs().value("export/format"), "jpeg");
}

TEST_F(AppSaving, ShowsThePlanAndGoesBackWithWhatWasTyped) {
    ASSERT_TRUE(QDir(folder.path()).mkpath("out/older"));
    const QString old = folder.filePath("out/Camera 2_C02H1_00001.png");
    write(old, "old");
    host.prefs().setValue("export/filenameaddnumbersessionnodigits", 0);
    QStringList told;
    QStringList paths;
    ModalWatcher watcher;
    QObject::connect(&watcher, &ModalWatcher::stands, [&](QDialog* dialog) {
        if (auto* plan = qobject_cast<PlanDialog*>(dialog)) {
            for (const PlanEntry& entry : plan->plan().entries) {
                told << entryText(entry);
            }
            told << (plan->plan().isPossible() ? "possible" : "not possible");
            plan->reject();
            return;
        }
        if (qobject_cast<GUI_SaveDialog*>(dialog) == nullptr) {
            return;
        }
        inPage("byId('save').click()");
        inPage("saveTargets.pick(saveTargets.rows()[1])");
        paths << inPage("saveNames.path()");
        inPage("saveTargets.rows()[0].querySelector('input').click()");
        inPage(QString("savePage.fill('dir', %1)").arg(scriptString(folder.filePath("p.ini/below"))));
        inPage("byId('save').click()");
        paths << inPage("byId('dir').value");
        inPage("byId('cancel').click()");
    });
    host.saveFiles();
    const QString out = folder.filePath("out/");
    EXPECT_EQ(
        told.join('|').toStdString(),
        QStringList({"Files and folders that are in " + out + " already: 2",
                     "Camera 2: 1 files exist already and are replaced, the first is " + old, "possible",
                     "Camera 2: There can't be a folder " + folder.filePath("p.ini/below/") + ".", "not possible"})
            .join('|')
            .toStdString());
    EXPECT_EQ(paths, QStringList({folder.filePath("out/Camera 2_C02H1_#####.png"), folder.filePath("p.ini/below")}));
    EXPECT_EQ(host.prefs().value("export/dir"), folder.filePath("out")) << "nobody has agreed";
    EXPECT_EQ(contentOf(old), "old");
    host.setRig(standardRig(1));
    host.saveFiles();
    EXPECT_EQ(messages(), QStringList("No connected camera has recorded images."));
}

TEST_F(AppSaving, ShowsWhereTheFirstFileWouldGo) {
    const QString out = folder.filePath("out/");
    const auto digits = [](const char* chosen) {
        return QString(
                   "byId('camera').value = %1; byId('camera').dispatchEvent(new Event('change'));"
                   "byId('%2').click()")
            .arg(QString(chosen).section(' ', 0, 0), QString(chosen).section(' ', 1));
    };
    const struct {
        const char* what;
        QHash<QString, QVariant> prefs;
        QString numbers;
        QString path;
    } cases[] = {
        {"as at first", {}, "", out + "Camera 1_C01H1S001_#####.png"},
        {"with numbers that are chosen", {}, digits("4 ok"), out + "Camera 1_C0001H1S001_#####.png"},
        {"and not with those that are not", {}, digits("6 cancel"), out + "Camera 1_C01H1S001_#####.png"},
        {"in the one group folder",
         {{"export/groupdir", true}, {"save/fixedgroupdir", "all"}},
         "",
         out + "all/Camera 1_C01H1S001_#####.png"},
        {"in the folder for all", {{"save/substitutefolder", "/else"}}, "", "/else/Camera 1_C01H1S001_#####.png"},
    };
    ModalWatcher watcher;
    for (const auto& one : cases) {
        for (auto pref = one.prefs.begin(); pref != one.prefs.end(); ++pref) {
            host.prefs().setValue(pref.key(), *pref);
        }
        QString path;
        const auto once = QObject::connect(&watcher, &ModalWatcher::stands, [&](QDialog* dialog) {
            if (qobject_cast<GUI_SaveDialog*>(dialog) == nullptr) {
                inPage(one.numbers);
                return;
            }
            if (!one.numbers.isEmpty()) {
                inPage("byId('numbers').click()");
            }
            path = inPage("saveNames.path()");
            inPage("byId('cancel').click()");
        });
        host.saveFiles();
        QObject::disconnect(once);
        EXPECT_EQ(path.toStdString(), one.path.toStdString()) << one.what;
    }
}

TEST_F(AppSaving, StaysTrueWhileTheRestChanges) {
    const QString hostile = "<img src=x onerror=alert(1)> %1 \"'&lt;";
    host.cameras().find(1)->change({{"name", hostile}});
    ModalWatcher watcher;
    QStringList told;
    QStringList seen;
    const auto update = [this] {
        host.updates().request();
        EXPECT_TRUE(until([this] { return !host.updates().isPending(); }));
    };
    QObject::connect(&watcher, &ModalWatcher::stands, [&](QDialog* dialog) {
        if (auto* plan = qobject_cast<PlanDialog*>(dialog)) {
            for (const PlanEntry& entry : plan->plan().entries) {
                told << entryText(entry);
            }
            plan->reject();
            return;
        }
        seen << rowInPage(0).section('|', 0, 0);
        inPage("byId('dir').focus()");
        inPage("savePage.fill('filename', 'shot'); savePage.fill('filenameadddetail', false)");
        // Others choose something, the cameras go, and the mode is another.
        host.prefs().setValue("export/format", "bmp");
        host.prefs().setValue("export/subdirname", "theirs");
        host.faults().plant(2, "*", {{}, 0, true});
        host.cameras().find(1)->set(&CameraState::connected, false);
        host.appStatus().enterMode(zeb::MemoryMode);
        update();
        seen << inPage("byId('format').value") << rowInPage(0).section('|', 0, 0) << rowInPage(1).section('|', 0, 0);
        seen << inPage("String(document.querySelectorAll('#targets img, #facts img').length)");
        seen << inPage("byId('fault').textContent");
        host.cameras().find(1)->set(&CameraState::connected, true);
        update();
        seen << rowInPage(0).section('|', 0, 0) << inPage("byId('fault').textContent");
        inPage("byId('save').click()");
        inPage("byId('cancel').click()");
    });
    host.saveFiles();
    const QString gone = ": the camera is gone";
    EXPECT_EQ(seen.join('\n').toStdString(),
              QStringList({hostile, "bmp", hostile + ": the camera was disconnected", "Camera 2" + gone, "0",
                           "None of the chosen recordings is there any more.", hostile, ""})
                  .join('\n')
                  .toStdString());
    EXPECT_TRUE(told.contains("Camera 2: not saved (the camera is gone)")) << told.join('|').toStdString();
    EXPECT_EQ(host.prefs().value("export/format"), "bmp") << "what others have stored stands";
    EXPECT_EQ(host.prefs().value("export/subdirname"), "theirs");
    EXPECT_EQ(host.prefs().value("export/filename"), "") << "what was tried alone is gone";
    EXPECT_EQ(messages().size(), 1) << "a notice of the camera that went, and no box";
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
        if (qobject_cast<GUI_SaveDialog*>(dialog) != nullptr) {
            first << inPage("document.querySelector('#targets tbody tr').textContent");
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
    const QString earlier = "Camera 1 (earlier recording)";
    dialogs.saves().order({});
    host.saveLayoutFiles();
    EXPECT_EQ(results(), QStringList("Layout with " + earlier + ", Camera 2 (earlier recording): 4 frames saved in " +
                                     QDir::toNativeSeparators(folder.filePath("out"))));
    const QImage picture(folder.filePath("out/Layout_S001_00000.png"));
    const QImage tile = picture.copy(60, 0, 360, 360).convertToFormat(QImage::Format_RGB32);
    EXPECT_EQ(tile, drawFrame({earlier, {64, 64}, -1, -1000, SensorNoise::of(first), {}}, {360, 360}))
        << "where its number stands too";
    EXPECT_EQ(lostByClosing(heldRecordings(host.cameras())).size(), 2U) << "a layout shows less than they hold";
    dialogs.saves().order({});
    host.saveFiles();
    const QStringList lines = results();
    EXPECT_TRUE(lines.value(1).startsWith("Camera 2, Partition 1: 3 frames saved in"))
        << "whatever partition is in use";
    EXPECT_TRUE(lines.value(2).startsWith("Camera 2 (earlier recording), Partition 2: 3 frames saved in"));
    EXPECT_TRUE(filesIn("out").contains("Camera 2_C02H1S002_00000.png")) << "two that would have one name";
}

TEST_F(AppSaving, ShowsTheProgressOfMoreFramesThanAnIntCounts) {
    for (DOCKEY key = 1; key <= 2; ++key) {
        host.cameras().find(key)->change({{"recordedRange", QVariantList{0, 2000000000}}});
        host.cameras().find(key)->change({{"selectedRange", QVariantList{key == 1 ? 2000000000 : 0, 2000000000}}});
    }
    SaveOrders orders{saveFormat("jpeg"), tracksOfEach(saveSources(host.cameras()))};
    orders.tracks.push_back(orders.tracks.back());
    for (std::size_t i = 0; i < orders.tracks.size(); ++i) {
        orders.tracks[i].stem = folder.filePath(QString::number(i));
    }
    SaveJob job(host.cameras(), orders);
    const SaveProgress progress(job, nullptr);
    job.start();
    EXPECT_TRUE(until([&job] { return job.done()[0] == 1; }));
    const auto* bar = progress.findChild<QProgressBar*>();
    EXPECT_EQ(bar->value(), 0) << "one frame of four thousand million";
    EXPECT_GT(bar->maximum(), 0);
}

TEST_F(AppSaving, EndsWithTheApplication) {
    QDir(folder.path()).mkdir("out");
    const QString old = folder.filePath("out/Camera 1_C01H1_-00001.png");
    write(old, "old");
    host.prefs().setValue("export/filenameaddnumbersessionnodigits", 0);
    ModalWatcher watcher;
    QObject::connect(&watcher, &ModalWatcher::stands, [&](QDialog* dialog) {
        if (qobject_cast<PlanDialog*>(dialog) == nullptr) {
            inPage("byId('save').click()");
            return;
        }
        EXPECT_FALSE(dialog->findChild<QPushButton*>("save")->isDefault());
        simulator.quit();
    });
    simulator.run([&] { host.saveFiles(); });
    EXPECT_EQ(filesIn("out").size(), 1);
    EXPECT_EQ(contentOf(old), "old") << "a plan that nobody has agreed to replaces nothing";
}

TEST_F(AppSaving, IsCancelledByItsButtonAlone) {
    host.cameras().find(2)->change(
        {{"resolution", QVariantList{1024, 1024}}, {"selectedRange", QVariantList{0, 2000}}});
    dialogs.saves().order({});
    host.saveFiles();
    auto* progress = simulator.window().findChild<SaveProgress*>();
    auto* button = progress->findChild<QPushButton*>("cancel");
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
    EXPECT_EQ(filesIn("out"), QStringList({"Layout_S001_00000.png", "Layout_S001_00001.png", "Layout_S001_00002.png"}));
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
    EXPECT_THAT(filesIn("snap").first().toStdString(), testing::MatchesRegex("Gate_1_C01H1S00[12]_[0-9]+-[0-9]+.png"));
    const QImage first(folder.filePath("snap/" + filesIn("snap").first()));
    EXPECT_EQ(first.size(), QSize(64, 64));
    EXPECT_TRUE(first.text("Description").startsWith("{\"camera\":\"Gate/1\",\"rate\":1000,\"shutter\":1000,"));
    EXPECT_TRUE(first.textKeys().contains("frame") && !first.textKeys().contains("time")) << "live has no trigger";
    for (const char* option : {"snap/cihx", "snap/overwrite", "snap/notify"}) {
        host.prefs().setValue(option, true);
    }
    host.prefs().setValue("snap/filenameaddtime", false);
    host.prefs().setValue("snap/filenameaddnumbersessionnodigits", 0);
    for (const char* format : {"bmp", "jpeg", "bmp"}) {
        host.prefs().setValue("snap/format", format);
        host.saver().snapShot(1);
    }
    const QStringList again = filesIn("snap").filter("Gate_1_C01H1.");
    EXPECT_EQ(again, QStringList({"Gate_1_C01H1.bmp", "Gate_1_C01H1.cih", "Gate_1_C01H1.jpg"})) << "replaced";
    EXPECT_TRUE(contentOf(folder.filePath("snap/Gate_1_C01H1.cih")).contains("Gate_1_C01H1.bmp"));
    QStringList notices;
    EXPECT_TRUE(until([&] {
        notices += messages();
        return !notices.isEmpty();
    })) << "notices";
    EXPECT_TRUE(notices.join('|').contains("Gate_1_C01H1.")) << notices.join('|').toStdString();
    host.prefs().setValue("snap/dir", folder.filePath("p.ini"));
    host.saver().snapShot(1);
    EXPECT_THAT(messages().join("|").toStdString(), testing::StartsWith(folder.filePath("p.ini").toStdString()));
}

}  // namespace
