#include "AppWindows.h"
#include "Camera.h"
#include "CameraView.h"
#include "CameraWindow.h"
#include "CameraWindows.h"
#include "CommandLine.h"
#include "DOC_Frames.h"
#include "DOC_Interface.h"
#include "EffectPanel.h"
#include "Files.h"
#include "FramePicture.h"
#include "InformationFile.h"
#include "PlayerBar.h"
#include "RigFile.h"
#include "Simulator.h"
#include "Until.h"
#include "ViewerWindow.h"

#include <QAction>
#include <QCheckBox>
#include <QLabel>
#include <QMdiArea>
#include <QPushButton>
#include <QSlider>
#include <QSpinBox>
#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace {

class Images : public testing::Test {
protected:
    Images() {
        viewer.show();
        for (DOCKEY key = 1; key <= 3; ++key) {
            camera(key).set(&CameraState::connected, true);
        }
        images.showNow();
    }

    Camera& camera(DOCKEY key) { return *host.cameras().find(key); }
    std::string titles() const {
        QStringList list;
        for (const QMdiSubWindow* window : viewer.mdiArea()->subWindowList(QMdiArea::CreationOrder)) {
            list << window->windowTitle();
        }
        return list.join('|').toStdString();
    }
    qint64 shown(DOCKEY key) const { return images.find(key)->view().frame()->number; }
    /// The number that is shown after the clock has gone on.
    qint64 shownLater(DOCKEY key) {
        simulator.clock().setSpeed(1000);
        const qint64 start = simulator.clock().now();
        EXPECT_TRUE(until([&] { return simulator.clock().now() >= start + 200; }));
        images.showNow();
        return shown(key);
    }

    QTemporaryDir folder;
    const CommandLine line = CommandLine::parse({"zebsim", "--rig", "4", "--prefs", folder.filePath("p.ini")});
    Simulator simulator{line};
    SimHost& host = simulator.host();
    ViewerWindow& viewer = simulator.window();
    CameraWindows& images = viewer.images();
};

TEST_F(Images, ComeAndGoWithTheCameras) {
    EXPECT_EQ(titles(), "Camera 1|Camera 2|Camera 3");
    EXPECT_EQ(host.mdi().countMdiWindow(true, 2), 3);
    host.docManager().disconnectDocs({1});
    host.docManager().connectDocs({4});
    EXPECT_EQ(host.mdi().countMdiWindow(true, 0), 3);
    EXPECT_EQ(titles(), "Camera 1|Camera 2|Camera 3") << "whoever counts them changes none";
    images.follow();
    EXPECT_EQ(titles(), "Camera 2|Camera 3|Camera 4");
    camera(2).set(&CameraState::name, QStringLiteral("<b>Gate</b> %1"));
    host.faults().plant(3, "*", {{}, 0, true});
    images.follow();
    EXPECT_EQ(titles(), "<b>Gate</b> %1|Camera 4");
    images.find(4)->close();
    EXPECT_TRUE(images.find(4)->isVisible()) << "none can be closed";
    EXPECT_EQ(host.mdi().countMdiWindow(true, 2), 2);
    host.setRig(standardRig(1));
    EXPECT_EQ(titles(), "");
}

TEST_F(Images, MoveWhileLiveRuns) {
    const qint64 first = shown(1);
    const qint64 second = shownLater(1);
    EXPECT_GT(second, first);
    camera(1).set(&CameraState::stopLive, true);
    EXPECT_EQ(shownLater(1), second);
    host.liveLoop().updateLive();
    EXPECT_GT(shown(1), second) << "a new one was asked for";
    const qint64 fresh = shown(1);
    EXPECT_EQ(shownLater(1), fresh);
    const qint64 other = shown(2);
    EXPECT_GT(shownLater(2), other) << "only one was stopped";
    host.liveLoop().pauseLive(0);
    const qint64 paused = shown(2);
    EXPECT_EQ(shownLater(2), paused);
    host.liveLoop().resumeLive();
    host.suspendViewer();
    EXPECT_GT(shownLater(2), paused) << "a dialog of a plug-in does not stop the images";
}

TEST_F(Images, HaveTheWindowOfTheCurrentCameraInFront) {
    const auto active = [&] { return static_cast<CameraWindow*>(viewer.mdiArea()->activeSubWindow()); };
    EXPECT_EQ(host.docManager().getCurrentDoc(), nullptr) << "no window has chosen its camera by coming up";
    host.docManager().setSelectedDocs({2, 3}, 0);
    images.follow();
    EXPECT_EQ(active(), images.find(2));
    EXPECT_TRUE(images.find(2)->view().isMarked() && images.find(3)->view().isMarked());
    EXPECT_FALSE(images.find(1)->view().isMarked());
    viewer.mdiArea()->setActiveSubWindow(images.find(1));
    EXPECT_EQ(host.docManager().getSelectedDocKeys(0), DocKeyList{1});
    EXPECT_EQ(host.docManager().getCurrentDockey(0), 1U);
    camera(4).set(&CameraState::connected, true);
    images.follow();
    EXPECT_EQ(active(), images.find(1)) << "a new window does not come in front";
    EXPECT_EQ(host.docManager().getCurrentDockey(0), 1U);
}

TEST_F(Images, ShowWhatIsRecordedInMemoryModeAndNothingInFileMode) {
    camera(1).change({{"recorded", true}, {"selected", true}});
    camera(1).change({{"recordedRange", QVariantList{0, 999}}, {"recordedTrigger", 400}});
    host.appStatus().enterMode(zeb::MemoryMode);
    EXPECT_EQ(shown(1), -400);
    EXPECT_FALSE(images.find(2)->view().frame()) << "this one has recorded nothing";
    auto* position = viewer.findChild<QSlider*>("position");
    position->setValue(450);
    EXPECT_EQ(shown(1), 50);
    viewer.findChild<QAction*>("play")->trigger();
    EXPECT_TRUE(host.docManager().getCurrentDoc()->frames().isPlaying());
    host.player().pausePlayer();
    const qint64 paused = shown(1);
    EXPECT_EQ(shownLater(1), paused);
    host.player().resumePlayer();
    EXPECT_GT(shownLater(1), paused);
    EXPECT_EQ(position->value(), shown(1) + 400);
    EXPECT_TRUE(viewer.findChild<PlayerBar*>()->isVisible());
    host.appStatus().enterMode(zeb::FileMode);
    EXPECT_EQ(titles(), "");
    EXPECT_EQ(host.mdi().countMdiWindow(true, 2), 0);
    EXPECT_FALSE(viewer.findChild<PlayerBar*>()->isVisible());
    EXPECT_FALSE(camera(1).get(&CameraState::playing));
}

/// A camera's recording of 20 frames, each of one grey, opened from files.
TEST_F(Images, ShowRecordingsInFilesUntilTheyAreClosed) {
    QStringList names;
    for (int frame = 0; frame < 20; ++frame) {
        QImage picture(64, 64, QImage::Format_RGB32);
        picture.fill(QColor(frame * 10, frame * 10, frame * 10));
        names << QStringLiteral("a%1.png").arg(frame);
        EXPECT_TRUE(picture.save(folder.filePath(names.last())));
    }
    camera(1).change({{"recorded", true}, {"recordedRange", QVariantList{0, 99}}, {"recordedTrigger", 10}});
    camera(1).change({{"resolution", QVariantList{64, 64}}, {"name", "Gate"}});
    RecordingInformation information = RecordingInformation::of(camera(1), camera(1).state(), *camera(1).recording());
    information.format = saveFormat("png");
    information.files = names;
    information.frames = names.size();
    write(folder.filePath("a.cih"), information.toJson());
    host.docManager().media().openFiles({folder.filePath("a.cih")});
    images.showNow();
    EXPECT_EQ(titles(), "Gate");
    const DOCKEY key = host.docManager().currentKey();
    const auto grey = [&] {
        return qRed(const_cast<CameraView&>(images.find(key)->view())
                        .grab()
                        .toImage()
                        .pixel(images.find(key)->view().rect().center()));
    };
    EXPECT_TRUE(until([&] { return grey() == 0; }));
    EXPECT_EQ(shown(key), -10);
    viewer.findChild<QSlider*>("position")->setValue(12);
    EXPECT_EQ(shown(key), 2);
    EXPECT_TRUE(until([&] { return grey() == 120; })) << grey();
    EXPECT_EQ(simulator.windows().shownFrame(key, *camera(key).recording()), 12);
    EXPECT_TRUE(viewer.findChild<PlayerBar*>()->isVisible());
    viewer.findChild<QAction*>("play")->trigger();
    EXPECT_TRUE(host.docManager().getCurrentDoc()->frames().isPlaying());
    EXPECT_TRUE(until([&] { return images.showNow(), shown(key) != 2; })) << "it plays";
    viewer.findChild<QAction*>("disconnectAll")->trigger();
    EXPECT_EQ(host.cameras().connectedOfRig().size(), 0U);
    EXPECT_EQ(host.cameras().connected().size(), 1U) << "what is open stays";
    EXPECT_TRUE(viewer.findChild<QAction*>("closeRecordings")->isEnabled());
    viewer.findChild<QAction*>("closeRecordings")->trigger();
    EXPECT_TRUE(until([this] { return titles().empty() && !viewer.findChild<PlayerBar*>()->isVisible(); }));
    EXPECT_FALSE(viewer.findChild<QAction*>("closeRecordings")->isEnabled());
    camera(1).set(&CameraState::connected, true);
    host.appStatus().enterMode(zeb::MemoryMode);
    images.showNow();
    EXPECT_EQ(titles(), "Gate");
}

TEST_F(Images, ShowAtOnceWhatThePluginsMakeOfThem) {
    camera(2).change({{"recorded", true}, {"recordedRange", QVariantList{0, 9}}});
    host.docManager().selectOnly({2});
    host.appStatus().enterMode(zeb::MemoryMode);
    images.showNow();
    const CameraView& view = images.find(2)->view();
    const auto seen = [&view] { return const_cast<CameraView&>(view).grab().toImage(); };
    images.toggleEffects();
    EffectPanel& panel = images.find(2)->effects();
    EXPECT_TRUE(panel.isVisible());
    QCoreApplication::processEvents();
    const QImage plain = seen();
    panel.findChild<QCheckBox*>("pseudo")->click();
    EXPECT_NE(seen(), plain) << "a paused one too";
    panel.findChild<QCheckBox*>("pseudo")->click();
    EXPECT_EQ(seen(), plain);

    // One that takes long comes later, and the windows do not wait for it.
    panel.findChild<QCheckBox*>("filter")->click();
    EXPECT_TRUE(until([&] {
        const QRgb middle = seen().pixel(plain.rect().center());
        return middle != plain.pixel(0, 0) && seen() != plain;
    }));
    panel.findChild<QCheckBox*>("filter")->click();
    EXPECT_EQ(seen(), plain);

    // Numbers that wait for their OK, and such as lie between two steps.
    auto* median = panel.findChild<QSpinBox*>("filter.median");
    median->setValue(4);
    EXPECT_TRUE(camera(2).get(&CameraState::pluginValues).isEmpty());
    images.follow();
    EXPECT_EQ(median->value(), 4) << "what is typed stays";
    panel.findChild<QPushButton*>("filter.ok")->click();
    const QVariantMap filter{{"median", 3}, {"sharpen", 100}};
    EXPECT_EQ(camera(2).get(&CameraState::pluginValues).value("filter").toMap(), filter);
    panel.findChild<QSpinBox*>("lut.black")->setValue(30);
    EXPECT_EQ(camera(2).get(&CameraState::pluginValues).value("lut").toMap().value("black").toInt(), 30);
    camera(2).set(&CameraState::locked, true);
    images.follow();
    EXPECT_FALSE(panel.findChild<QCheckBox*>("lut")->isEnabled());
    EXPECT_TRUE(panel.findChild<QCheckBox*>("mosaic")->isEnabled()) << "it works on recorded images alone";
}

TEST_F(Images, StandBelowTheItemsThatAreToBeShown) {
    const auto list = [](const char* name, bool display, const char* value = "1\n2") {
        return QVariantList{QVariantMap{{"name", name}, {"value", value}, {"display", display}}};
    };
    const auto seen = [&] {
        images.showNow();
        return images.find(1)->view().grab().toImage();
    };
    camera(1).change({{"stopLive", true}, {"selected", true}, {"customInfo", list("Lot", false)}});
    const QImage bare = seen();
    camera(1).change({{"customInfo", list("Lot", true)}});
    EXPECT_NE(seen(), bare);
    camera(1).change({{"customInfo", QVariantList()}});
    EXPECT_EQ(seen(), bare);

    camera(1).change({{"recorded", true}, {"recordedCustomInfo", list("<b>Lot</b>", false)}});
    host.appStatus().enterMode(zeb::MemoryMode);
    const QImage recorded = seen();
    const auto* player = viewer.findChild<QLabel*>("items");
    EXPECT_EQ(player->text(), "");
    camera(1).change({{"recordedCustomInfo", list("<b>Lot</b>", true)}});
    EXPECT_NE(seen(), recorded);
    EXPECT_EQ(player->text(), "<b>Lot</b>: 1\\n2") << "the recording's own, as text";
    EXPECT_TRUE(player->toolTip().contains("&lt;b&gt;Lot&lt;/b&gt;: 1<br"));
    camera(1).change({{"recordedCustomInfo", list("<b>Lot</b>", true, "1\\n2")}});
    images.showNow();
    EXPECT_TRUE(player->toolTip().contains("1\\n2")) << "another text in the same line";
}

}  // namespace
