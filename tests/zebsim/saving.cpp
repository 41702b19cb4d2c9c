#include "DOC_Control.h"
#include "DOC_Frames.h"
#include "DOC_Interface.h"
#include "Files.h"
#include "FullDisk.h"
#include "LastShoot.h"
#include "RealClock.h"
#include "RecordedRig.h"
#include "Unprivileged.h"
#include "support/SavingTest.h"

#include <numeric>

namespace {

using Saving = SavingTest;

const QStringList AllFiles = {"Gate_-00001.png", "Gate_00000.png", "Nozzle_2_00000.png", "Nozzle_2_00001.png",
                              "Nozzle_2_00002.png"};
const QString GateSaved = "Gate: 2 of 2 up to 0, saved";
const QString NozzleSaved = "Nozzle/2: 3 of 3 up to 2, saved";

TEST_F(Saving, WritesTheChosenFramesSoThatOthersReadThem) {
    host.camera(3).change({{"effectivePlugins", QStringList{"filter", "mosaic", "lut"}},
                           {"pluginValues", QVariantMap{{"lut", QVariantMap{{"white", 160}}}}}});
    const auto kind = [](const char* id, int depth, bool isPackedOrSmall = false) {
        SaveFormat format = saveFormat(id);
        format.options.depth = depth;
        format.options.isPackBits = isPackedOrSmall;
        format.options.isSmall = isPackedOrSmall;
        return format;
    };
    for (const SaveFormat& format :
         {kind("png", 8), kind("png", 16), kind("png", 8, true), kind("tiff", 8), kind("tiff", 16),
          kind("tiff", 8, true), kind("tiff", 16, true), kind("bmp", 8), kind("jpeg", 8)}) {
        SaveOrders wanted = orders();
        wanted.format = format;
        EXPECT_EQ(run(wanted), QStringList({GateSaved, NozzleSaved})) << format.id.toStdString();
        QStringList expected = AllFiles;
        EXPECT_EQ(files(), expected.replaceInStrings("png", format.suffix));
        const int depth = format.options.depth;
        for (const SaveTrack& track : wanted.tracks) {
            const QString file = wanted.fileOf(track, 1);
            const QByteArray read = readByOthers(file, depth);
            const QByteArray pixels = pixelsOf(track.picture(1), depth);
            ASSERT_EQ(read.size(), pixels.size());
            const int sum = std::inner_product(read.begin(), read.end(), pixels.begin(), 0, std::plus<>(),
                                               [](uchar one, uchar two) { return std::abs(one - two); });
            EXPECT_LE(sum, format.id == "jpeg" ? 4 * pixels.size() : 0) << file.toStdString();
        }
        removeFiles();
    }
    const CameraFrame second{
        "Nozzle/2", Size, 1, 1000, SensorNoise::of(host.camera(3)), effectsOf(host.camera(3).state(), zeb::MemoryMode)};
    EXPECT_EQ(orders().tracks[1].picture(1), drawFrame(second, Size));
}

TEST_F(Saving, TellsInEachFileWhatItShows) {
    const auto item = [](const QString& name, const QString& value, bool display) {
        return QVariantMap{{"name", name}, {"value", value}, {"unit", "bar"}, {"display", display}};
    };
    const QString hostile = QString::fromUtf8("<b>\"\\  é\n\xf0\x9f\x93\xb7");
    const QString name = QString::fromUtf8("圧力 \"1\"");
    const QString longer(2000, 'x');
    host.camera(1).change({{"shutter", 500}, {"recordedShutter", 8000}, {"rate", 60}, {"name", name}});
    host.camera(1).change({{"customInfo", QVariantList{item("next", "1", true)}}});
    host.camera(1).change({{"recordedCustomInfo", QVariantList{item("hidden", "1", false), item("p", hostile, true)}}});
    const QString text =
        "{\"camera\":\"\\u5727\\u529b "
        "\\\"1\\\"\",\"rate\":1000,\"shutter\":8000,\"frame\":-1,\"time\":-0.001000,\"items\":[{\"name\":"
        "\"p\",\"value\":\"<b>\\\"\\\\  \\u00e9\\u000a\\ud83d\\udcf7\",\"unit\":\"bar\"}]}";
    for (const char* format : {"png", "tiff", "jpeg"}) {
        const SaveOrders wanted = orders(format);
        run(wanted);
        const QString file = wanted.fileOf(wanted.tracks[0], 0);
        const bool isPng = wanted.format.id == "png";
        const QString texts =
            QString::fromUtf8(outputOf("identify", {"-format", isPng ? "%[Description]%[time]" : "%[comment]", file}));
        EXPECT_EQ(texts, isPng ? text % "-0.001000" : wanted.format.id == "jpeg" ? "Description: " % text : text);
        EXPECT_EQ(QImage(file).text("camera"), isPng ? name : QString());
    }
    host.camera(1).change({{"triggerOffset", 60}, {"triggerOffsetEnabled", true}});
    EXPECT_TRUE(orders().tracks[0].metadata(0).description.contains("\"frame\":39,\"time\":-0.001000"))
        << "from the trigger";
}

TEST_F(Saving, CountsFramesAsTheTableDoes) {
    for (const bool moved : {false, true}) {
        host.camera(3).change({{"triggerOffset", 60}, {"triggerOffsetEnabled", moved}});
        const DOC_Frames& frames = host.doc(3)->frames();
        const SaveTrack track = orders().tracks[1];
        EXPECT_EQ(track.number(0), frames.getSelectStartFrame(0) - frames.getTriggerFrame(0));
        EXPECT_EQ(track.number(0), moved ? 40 : 0);
        EXPECT_EQ(host.doc(3)->control().getTriggerOffsetBase(), 100) << "the offset counts from the trigger itself";
    }
}

TEST_F(Saving, TakesAllPartitionsInWhateverIsInUse) {
    for (const PARTITIONNUMBER partition : {2, 3}) {
        host.camera(1).change({{"partitions", 3}, {"partition", partition}});
        prepare(1, "Gate", 97, 100);
    }
    host.camera(1).change({{"partition", 2}});
    SaveOrders wanted = orders();
    QStringList names;
    for (SaveTrack& track : wanted.tracks) {
        names << QStringLiteral("%1 of %2").arg(track.sources[0].partition()).arg(track.sources[0].key());
        track.stem += names.last();
    }
    EXPECT_EQ(names, QStringList({"1 of 1", "2 of 1", "3 of 1", "1 of 3"}));
    EXPECT_EQ(run(wanted),
              QStringList({GateSaved, "Gate: 4 of 4 up to 0, saved", "Gate: 4 of 4 up to 0, saved", NozzleSaved}));
    EXPECT_EQ(files().size(), 2 + 4 + 4 + 3);
    EXPECT_TRUE(host.camera(1).recordingOf(1)->saved && host.camera(1).recordingOf(3)->saved);
    SaveTrack& track = wanted.tracks[1];
    track.stem = "/a/G";
    track.from = 1;
    EXPECT_EQ(filesIn(track, saveFormat("png")), 3);
    EXPECT_EQ(filesIn(track, saveFormat("video")), 1);
    wanted.frameDigits = 3;
    EXPECT_EQ(wanted.fileOf(track, 2), "/a/G_-001.png");
    wanted.format = saveFormat("video");
    EXPECT_EQ(wanted.fileOf(track, 2), "/a/G.mp4");
}

TEST_F(Saving, WritesOverNothingButWhatItMay) {
    const QString appeared = "a file of that name is there already";
    write(path(AllFiles[1]), "old");
    write(path(AllFiles[2]), "old");
    SaveOrders wanted = orders();
    wanted.mayReplace = {path(AllFiles[2])};
    EXPECT_EQ(run(wanted), QStringList({"Gate: 1 of 2 up to -1, failed", NozzleSaved}));
    EXPECT_EQ(failedFile, AllFiles[1]);
    EXPECT_EQ(contentOf(path(AllFiles[1])), "old");
    EXPECT_FALSE(QImage(path(AllFiles[2])).isNull());
    EXPECT_EQ(files(), AllFiles);
    QFile::remove(path(AllFiles[1]));
    SaveOrders again = orders();
    again.tracks[0].from = 1;
    again.tracks.pop_back();
    EXPECT_EQ(run(again), QStringList("Gate: 1 of 1 up to 0, saved")) << "where the last one ended";
    EXPECT_EQ(run(again), QStringList("Gate: 0 of 1 up to 0, failed"));
    EXPECT_EQ(reason, appeared);
    EXPECT_TRUE(host.camera(1).recording()->saved);
    QFile::remove(path(AllFiles[0]));
    QFile::remove(path(AllFiles[1]));
    EXPECT_EQ(run(again), QStringList("Gate: 0 of 2 up to 0, failed")) << "what stood there before counts too";
    EXPECT_EQ(reason, "the file has gone since it was written");
}

TEST_F(Saving, LosesNoOtherTrackByAFileOrFolderThatCannotBeWritten) {
    prepare(1, "Gate", 99, 140);
    ASSERT_TRUE(QDir().mkpath(path("Gate_00000.png/x")));
    ASSERT_TRUE(QDir().mkpath(path("locked")));
    QFile::setPermissions(path("locked"), QFile::ReadOther | QFile::ExeOther | QFile::ReadOwner | QFile::ExeOwner);
    QFile::setPermissions(folder.path(), QFile::Permissions(0x7777));
    write(path("file"), "old");
    const struct {
        const char *what, *stem, *outcome, *file;
    } cases[] = {{"a folder that vanishes", "gone/Gate", "Gate: 0 of 42 up to 0, failed", "gone"},
                 {"a folder of that name", "Gate", "Gate: 1 of 42 up to -1, failed", "Gate_00000.png"},
                 {"a folder that can't be made", "file/below/Gate", "Gate: 0 of 42 up to 0, failed", "below"},
                 {"a folder that can only be read", "locked/Gate", "Gate: 0 of 42 up to 0, failed", "Gate_-00001.png"},
                 {"a new folder", "new/er/Gate", "Gate: 42 of 42 up to 40, saved", ""}};
    const Unprivileged user;
    for (const auto& one : cases) {
        SaveOrders wanted = orders();
        wanted.tracks[0].stem = path(one.stem);
        wanted.mayReplace = {path("Gate_00000.png")};
        wanted.diskFault = [this](const QString&, qint64) {
            if (QDir(path("gone")).entryList(QDir::Files).size() == 5) {
                QDir().rename(path("gone"), path("away"));
            }
            return QString();
        };
        failedFile.clear();
        EXPECT_EQ(run(wanted), QStringList({one.outcome, NozzleSaved})) << one.what;
        EXPECT_EQ(failedFile, one.file) << one.what;
        removeFiles();
        write(path("file"), "old");
    }
}

TEST_F(Saving, LeavesOldPicturesWholeOnAFullDisk) {
    write(path(AllFiles[1]), "old");
    host.camera(1).set(&CameraState::selectedRange, {100, 100});
    SaveOrders wanted = orders();
    wanted.mayReplace = {path(AllFiles[1])};
    for (const bool pages : {true, false}) {
        wanted.format = saveFormat(pages ? "tiff" : "png");
        wanted.format.options.isMultiPage = pages;
        const FullDisk disk(100);
        EXPECT_EQ(run(wanted), QStringList({"Gate: 0 of 1 up to 0, failed", "Nozzle/2: 0 of 3 up to 0, failed"}));
        EXPECT_EQ(reason, "File too large");
    }
    EXPECT_TRUE(contentOf(path(AllFiles[1])) == "old" && files().size() == 1 && !host.camera(1).recording()->saved);
    run(wanted);
    EXPECT_TRUE(host.camera(1).recording()->saved);
}

TEST_F(Saving, LosesACameraAtAnyFrameAndNoOther) {
    for (const Fault& fault : {Fault{"it is too hot", 0, false}, Fault{{}, 0, true}}) {
        for (int frame = 0; frame < 3; ++frame) {
            SaveOrders alone = orders();
            alone.tracks.erase(alone.tracks.begin());
            host.host.faults().plantAt(1 + frame, fault);
            EXPECT_EQ(
                run(alone),
                QStringList(QStringLiteral("Nozzle/2: %1 of 3 up to %2, lost").arg(frame).arg(std::max(0, frame - 1))));
            EXPECT_EQ(files(), QStringList(AllFiles.mid(2, frame)));
            EXPECT_EQ(reason, fault.gone ? "the camera is gone" : "it is too hot");
            host.host.faults().clear();
            removeFiles();
        }
        host.host.faults().plant(1, "readFrame", fault);
        EXPECT_EQ(run(orders()), QStringList({"Gate: 0 of 2 up to 0, lost", NozzleSaved}));
        host.host.faults().clear();
        removeFiles();
    }
}

/// A host on another clock, whose cameras have recorded a few frames.
template <typename ClockType>
struct RecordedHost {
    RecordedHost(int cameras, int frames) { host.setRig(recordedRig(cameras, {64, 64}, frames, 0)); }

    SaveOrders orders() {
        SaveOrders wanted{saveFormat("png"), tracksOfEach(saveSources(host.cameras()))};
        for (SaveTrack& track : wanted.tracks) {
            track.stem = folder.filePath(track.name);
        }
        return wanted;
    }

    ClockType clock;
    ScriptedDesk desk;
    QTemporaryDir folder;
    SimHost host{clock, desk, folder.filePath("prefs.ini")};
};

/// Tells of each wait, on the thread that waits.
struct TellingClock : SteppedClock {
    std::function<void()> tell;
    void wait(qint64 ms) override {
        if (ms > 0) {
            tell();
        }
        SteppedClock::wait(ms);
    }
};

TEST(SavingWhileItChanges, LosesARecordingThatIsMadeAnewAndCamerasOfAnotherRig) {
    for (const bool rig : {true, false}) {
        RecordedHost<TellingClock> test(1, 3);
        const auto held = test.host.cameras().hold(1);
        int reads = 0;
        test.clock.tell = [&] {
            if (++reads == 2 && rig) {
                QMetaObject::invokeMethod(
                    &test.host.journal(), [&] { test.host.setRig(connected(1)); }, Qt::BlockingQueuedConnection);
            } else if (reads == 2) {
                held->keep(1, held->recording());
            }
        };
        test.host.faults().plant(1, "readFrame", {{}, 1, false});
        SaveJob job(test.host.cameras(), test.orders());
        job.start();
        ASSERT_TRUE(until([&job] { return !job.isRunning(); }));
        EXPECT_EQ(job.outcomes().front().reason, rig ? "the camera is gone" : "the recording is gone");
        EXPECT_EQ(job.outcomes().front().saved, 1);
    }
}

TEST_F(Saving, ReadsCamerasSideBySide) {
    host.host.setRig(standardRig(8));
    for (DOCKEY key = 1; key <= 8; ++key) {
        prepare(key, QString::number(key), 0, 63);
        host.host.faults().plant(key, "readFrame", {{}, 50, false});
    }
    for (const bool layout : {false, true}) {
        SaveOrders wanted = orders("jpeg");
        if (layout) {
            wanted.tracks = tracksOfLayout(sources(), "Layout");
            wanted.tracks.front().stem = path("Layout");
        }
        EXPECT_EQ(run(wanted).filter("saved").size(), layout ? 1 : 8);
        EXPECT_EQ(host.clock.join(), 64 * 50);
    }
    EXPECT_EQ(files().size(), 9 * 64);
}

TEST(SavingWithoutAnswer, HoldsUpNoOtherCameraAndNoCancel) {
    for (const bool isCancelled : {true, false}) {
        RecordedHost<RealClock> test(8, 20);
        FaultPlan& faults = test.host.faults();
        faults.plant(2, "readFrame", {{}, std::numeric_limits<int>::max(), false});
        faults.plant(4, "readFrame", {"it is too hot", 0, false, 7});
        faults.plant(6, "readFrame", {{}, 0, true, 9});
        SaveJob job(test.host.cameras(), test.orders());
        job.start();
        ASSERT_TRUE(until([&job] { return job.done() == std::vector<int>({20, 0, 20, 7, 20, 9, 20, 20}); }));
        EXPECT_TRUE(job.isRunning());
        if (!isCancelled) {
            continue;  // It is destroyed.
        }
        job.cancel();
        ASSERT_TRUE(until([&job] { return !job.isRunning(); }));
        QStringList reasons;
        for (const SaveOutcome& outcome : job.outcomes()) {
            reasons << (outcome.end == SaveOutcome::Cancelled ? "cancelled" : outcome.reason);
        }
        EXPECT_EQ(reasons, QStringList({"", "cancelled", "", "it is too hot", "", "the camera is gone", "", ""}));
        EXPECT_EQ(job.outcomes()[1].name, "Camera 2");
        EXPECT_TRUE(test.host.cameras().find(1)->recording()->saved);
    }
}

TEST(SavingToASlowDisk, WaitsForItNoLongerWhenItIsCancelled) {
    RecordedHost<RealClock> test(1, 3);
    test.host.faults().plant(FaultPlan::Disk, "write", {{}, std::numeric_limits<int>::max(), false});
    SaveOrders wanted = test.orders();
    std::atomic<bool> isWriting{false};
    wanted.diskFault = [&](const QString&, qint64) {
        isWriting = true;
        return test.host.faults().suffer(FaultPlan::Disk, "write", test.clock);
    };
    SaveJob job(test.host.cameras(), wanted);
    job.start();
    ASSERT_TRUE(until([&] { return isWriting.load(); }));
    job.cancel();
    EXPECT_TRUE(until([&job] { return !job.isRunning(); }));
}

/// Whether threads can be made from now on: the stack of none is there.
void allowThreads(bool allow) {
    pthread_attr_t attributes;
    pthread_attr_init(&attributes);
    pthread_attr_setstacksize(&attributes, std::size_t(1) << (allow ? 23 : 48));
    pthread_setattr_default_np(&attributes);
}

TEST(SavingWithoutThreads, FailsByNameOrGoesOnWithThoseThereAre) {
    for (const bool layout : {false, true}) {
        RecordedHost<RealClock> test(2, 3);
        SaveOrders wanted = test.orders();
        if (layout) {
            wanted.tracks = tracksOfLayout(saveSources(test.host.cameras()), "Layout");
            wanted.tracks.front().stem = test.folder.filePath("Layout");
        }
        wanted.diskFault = [](const QString&, qint64) { return allowThreads(false), QString(); };
        allowThreads(layout);
        SaveJob job(test.host.cameras(), wanted);
        job.start();
        EXPECT_TRUE(until([&job] { return !job.isRunning(); }));
        allowThreads(true);
        const SaveOutcome& last = job.outcomes().back();
        EXPECT_EQ(last.name, layout ? "Layout" : "Camera 2");
        EXPECT_EQ(last.saved, layout ? 3 : 0);
        EXPECT_EQ(last.reason, layout ? "" : "Resource temporarily unavailable");
    }
}

TEST_F(Saving, EndsWithTheFrameAtWhichItIsCancelled) {
    for (int frames = 1; frames <= 3; ++frames) {
        SaveOrders wanted = orders();
        wanted.tracks.erase(wanted.tracks.begin());
        std::unique_ptr<SaveJob> job;
        wanted.diskFault = [&](const QString&, qint64) {
            QMetaObject::invokeMethod(
                qApp, [&] { files().size() == frames - 1 ? job->cancel() : void(); }, Qt::BlockingQueuedConnection);
            return QString();
        };
        job = std::make_unique<SaveJob>(host.host.cameras(), wanted);
        job->start();
        ASSERT_TRUE(until([&job] { return !job->isRunning(); }));
        const QString cancelled = QStringLiteral("Nozzle/2: %1 of 3 up to %2, cancelled").arg(frames).arg(frames - 1);
        EXPECT_EQ(told(*job), QStringList(frames == 3 ? NozzleSaved : cancelled));
        EXPECT_EQ(files(), QStringList(AllFiles.mid(2, frames)));
        EXPECT_EQ(host.camera(3).recording()->saved, frames == 3);
        removeFiles();
    }
}

TEST_F(Saving, LaysTheCamerasSideBySide) {
    SaveOrders layout = orders();
    layout.tracks = tracksOfLayout(sources(), "Layout");
    layout.tracks.front().stem = path("Layout");
    host.host.faults().plant(1, "readFrame", {"it is too hot", 0, false});
    EXPECT_EQ(run(layout), QStringList({"Gate: 0 of 4 up to 0, lost", "Layout: 4 of 4 up to 3, saved"}));
    EXPECT_EQ(files(), QStringList({"Layout_00000.png", "Layout_00001.png", "Layout_00002.png", "Layout_00003.png"}));
    const QImage last(path("Layout_00003.png"));
    ASSERT_EQ(last.size(), QSize(960, 360));
    const QSize tile = fitInto({480, 360}, Size);
    const QImage right =
        last.copy(480 + (480 - tile.width()) / 2, (360 - tile.height()) / 2, tile.width(), tile.height());
    const CameraFrame frame{"Nozzle/2", Size, 2, 2000, SensorNoise::of(host.camera(3)), {}};
    EXPECT_EQ(right.convertToFormat(QImage::Format_RGB32), drawFrame(frame, tile));
    EXPECT_EQ(last.pixel(240, 180), QColor(24, 26, 30).rgb()) << "nothing is shown of the lost one";
}

TEST_F(Saving, KnowsWhoHasRecordedAndIsNotThereAnyMore) {
    host.host.prefs().setValue("alert/unsavedrecording", false);
    const LastShoot last(host.host.cameras(), host.host.events());
    SimRecorder& recorder = host.host.recorder();
    const auto shoot = [&] {
        host.host.appStatus().enterMode(zeb::LiveMode);
        recorder.startRecReady();
        host.clock.advance(1000);
        recorder.triggerRecording();
        host.clock.advance(100);
        recorder.stopRecording();
        QCoreApplication::processEvents();
        EXPECT_EQ(host.host.isMemoryMode(), recorder.lost().isEmpty());
    };
    const auto connect = [&](DOCKEY key, bool on) { host.camera(key).set(&CameraState::connected, on); };
    const struct {
        const char* what;
        std::function<void()> happens;
        QStringList absent;
    } cases[] = {
        {"recorded before there was a shoot", [&] { connect(3, false); }, {}},
        {"all are there", [&] { connect(3, true), shoot(); }, {}},
        {"one vanishes",
         [&] {
             host.host.faults().plant(1, "*", {{}, 0, true});
         },
         {"Gate is gone"}},
        {"another is disconnected", [&] { connect(2, false); }, {"Gate is gone", "Camera 2"}},
        {"one is saved and goes",
         [&] { host.camera(3).noteSaved(*host.camera(3).recording()), connect(3, false); },
         {"Gate is gone", "Camera 2"}},
        {"one without its recording goes",
         [&] { connect(3, true), host.camera(3).eraseRecordedData(), connect(3, false); },
         {"Gate is gone", "Camera 2"}},
        {"one comes back", [&] { connect(2, true); }, {"Gate is gone"}},
        {"a new shoot without it", [&] { connect(3, true), shoot(); }, {}},
        {"one uses another partition",
         [&] { host.camera(2).set(&CameraState::partitions, 2), host.camera(2).setPartition(2); },
         {}},
        {"and what it used before again", [&] { host.camera(2).setPartition(1); }, {}},
        {"a shoot that fails on all cameras",
         [&] {
             for (const DOCKEY key : {2, 3}) {
                 host.host.faults().plant(key, "trigger", {"no answer", 0, false});
             }
             shoot();
             for (const DOCKEY key : {2, 3}) {
                 host.host.faults().plant(key, "trigger", {});
             }
             EXPECT_TRUE(last.isEarlier(*host.camera(2).recording()));
             host.camera(2).set(&CameraState::connected, false);
         },
         {}},
        {"one that works again", [&] { connect(2, true), shoot(); }, {}},
        {"all are deleted", [&] { host.host.cameras().forgetAll(); }, {"Camera 2", "Nozzle/2"}},
        {"another rig", [&] { host.host.setRig(standardRig(3)); }, {}},
    };
    for (const auto& one : cases) {
        one.happens();
        QStringList absent;
        for (const AbsentCamera& camera : last.absent()) {
            absent << camera.name + (camera.why == AbsentCamera::Gone ? " is gone" : "");
        }
        EXPECT_EQ(absent, one.absent) << one.what;
    }
}

}  // namespace
