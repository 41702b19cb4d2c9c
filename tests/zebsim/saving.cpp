#include "DOC_Control.h"
#include "DOC_Frames.h"
#include "DOC_Interface.h"
#include "FileNames.h"
#include "Files.h"
#include "FramePicture.h"
#include "FullDisk.h"
#include "LastShoot.h"
#include "SaveJob.h"
#include "SaveNames.h"
#include "Until.h"
#include "support/TestHost.h"

#include <QDir>
#include <QFile>
#include <QImageReader>
#include <QProcess>
#include <QStandardPaths>

#include <gtest/gtest.h>

namespace {

constexpr QSize Size{64, 48};

/// Three cameras, the second without a recording; two frames are to be kept of the first and three of the third.
class Saving : public testing::Test {
protected:
    Saving() {
        prepare(1, "Gate", 99, 100);
        prepare(3, "Nozzle/2", 100, 102);
        host.camera(2).change({{"connected", true}});
    }

    void prepare(DOCKEY key, const QString& name, int first, int last) {
        host.camera(key).change({{"name", name}, {"connected", true}, {"recorded", true}, {"recordedRate", 1000}});
        host.camera(key).change({{"resolution", QVariantList{Size.width(), Size.height()}}, {"recordedTrigger", 100}});
        host.camera(key).change(
            {{"recordedRange", QVariantList{0, 499}}, {"selectedRange", QVariantList{first, last}}});
    }
    SensorNoise noise(DOCKEY key) { return SensorNoise::of(host.camera(key)); }
    SaveSources sources() { return saveSources(host.host.cameras(), fileNames); }
    SaveOrders orders(const char* format = "png") {
        const auto ask = [this](const QString& file) {
            asked << QFileInfo(file).fileName();
            return answer;
        };
        return {path(""), saveFormat(format), tracksOfEach(sources()), ask};
    }
    /// What became of each track, as "Gate: 2 of 2 up to 0, saved".
    QStringList run(const SaveOrders& wanted, const std::function<void(SaveJob&)>& atEachTurn = {}) {
        static const QStringList ends = {"saved", "lost", "failed", "skipped", "cancelled"};
        SaveJob job(host.host.cameras(), wanted);
        QObject::connect(&job, &SaveJob::progressed, [&] {
            if (atEachTurn) {
                atEachTurn(job);
            }
        });
        EXPECT_FALSE(job.start());
        EXPECT_TRUE(until([&job] { return !job.isRunning(); }));
        QStringList texts;
        for (const SaveOutcome& outcome : job.outcomes()) {
            texts << QStringLiteral("%1: %2 of %3 up to %4, %5")
                         .arg(outcome.name)
                         .arg(outcome.saved)
                         .arg(outcome.frames)
                         .arg(outcome.lastNumber)
                         .arg(ends.at(outcome.end));
            reason = outcome.reason;
            failedFile = outcome.file.isEmpty() ? failedFile : QFileInfo(outcome.file).fileName();
        }
        return texts;
    }
    QString path(const QString& name) const { return QDir(folder.path()).filePath(name); }
    QStringList files() const { return QDir(folder.path()).entryList(QDir::Files | QDir::Hidden, QDir::Name); }
    void writeOld(const QString& name) const { write(path(name), "old"); }
    bool isOld(const QString& name) const { return contentOf(path(name)) == "old"; }

    TestHost host{standardRig(3)};
    QTemporaryDir folder;
    FileNames fileNames{{"Layout"}};
    Overwrite answer = Overwrite::This;
    QStringList asked;
    QString failedFile;
    /// Of the last track.
    QString reason;
};

const QStringList AllFiles = {"Gate_-00001.png", "Gate_00000.png", "Nozzle_2_00000.png", "Nozzle_2_00001.png",
                              "Nozzle_2_00002.png"};
const QString NozzleSaved = "Nozzle/2: 3 of 3 up to 2, saved";

TEST_F(Saving, WritesTheChosenFramesAndNoOthers) {
    int atNext = -1;
    const auto follow = [&atNext](const SaveJob& job) {
        if (job.isRunning() && job.outcomes().size() == 1 && atNext < 0) {
            atNext = job.frame();
        }
    };
    host.camera(3).change({{"effectivePlugins", QStringList{"filter", "mosaic", "lut"}},
                           {"pluginValues", QVariantMap{{"lut", QVariantMap{{"white", 160}}}}}});
    for (const char* format : {"png", "tiff", "jpeg"}) {
        EXPECT_EQ(run(orders(format), follow), QStringList({"Gate: 2 of 2 up to 0, saved", NozzleSaved})) << format;
        QStringList expected = AllFiles;
        expected.replaceInStrings("png", saveFormat(format).suffix);
        EXPECT_EQ(files(), expected);
        for (const QString& file : files()) {
            const QImage read = QImageReader(path(file)).read().convertToFormat(QImage::Format_RGB32);
            const int number = file.section('_', -1).section('.', 0, 0).toInt();
            const QString camera = file.startsWith('G') ? "Gate" : "Nozzle/2";
            CameraFrame frame{camera, Size, number, qint64(number) * 1000, noise(camera == "Gate" ? 1 : 3), {}};
            frame.effects = camera == "Gate" ? FrameEffects() : effectsOf(host.camera(3).state(), zeb::MemoryMode);
            const QImage drawn = drawFrame(frame, Size);
            EXPECT_EQ(read.size(), Size) << file.toStdString();
            EXPECT_TRUE(read == drawn || qstrcmp(format, "jpeg") == 0) << file.toStdString();
            QFile::remove(path(file));
        }
    }
    EXPECT_EQ(asked, QStringList());
    EXPECT_EQ(atNext, 0) << "a camera begins at none, not where the one before has ended";
}

/// The text in a saved picture. Qt's reader of TIFF files passes over it.
QString textIn(const QString& file) {
    if (!file.endsWith(".tif")) {
        return QImage(file).text("Description");
    }
    const QByteArray bytes = contentOf(file);
    return QString::fromLatin1(bytes.mid(bytes.indexOf("{\"camera")).constData());
}

TEST_F(Saving, TellsInEachFileWhatItShows) {
    const auto item = [](const QString& name, const QString& value, bool display) {
        return QVariantMap{{"name", name}, {"value", value}, {"unit", "bar"}, {"display", display}};
    };
    const QString hostile = QString::fromUtf8("<b>\"\\  é\n\xf0\x9f\x93\xb7");
    const QString name = QString::fromUtf8("圧力 \"1\"");
    const QString stem = path(QString::fromUtf8("圧力 _1__-00001."));
    host.camera(1).change({{"shutter", 500}, {"recordedShutter", 8000}, {"rate", 60}, {"name", name}});
    host.camera(1).change({{"customInfo", QVariantList{item("next", "1", true)}}});
    host.camera(1).change({{"recordedCustomInfo", QVariantList{item("hidden", "1", false), item("p", hostile, true)}}});
    const QString text =
        "{\"camera\":\"\\u5727\\u529b "
        "\\\"1\\\"\",\"rate\":1000,\"shutter\":8000,\"frame\":-1,\"time\":-0.001000,\"items\":[{\"name\":"
        "\"p\",\"value\":\"<b>\\\"\\\\  \\u00e9\\u000a\\ud83d\\udcf7\",\"unit\":\"bar\"}]}";
    for (const char* format : {"png", "tiff", "jpeg"}) {
        run(orders(format));
        EXPECT_EQ(textIn(stem % saveFormat(format).suffix), text) << format;
    }
    EXPECT_EQ(QImage(stem % "png").text("camera"), name);
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

TEST_F(Saving, NamesFilesSoThatEverySystemTakesThem) {
    EXPECT_EQ(fileNameOf("a/b\\c:d*e?f\"g<h>i|j\nk"), "a_b_c_d_e_f_g_h_i_j_k");
    EXPECT_EQ(fileNameOf(" ../.. "), "_..");
    EXPECT_EQ(fileNameOf(" . "), "camera");
    EXPECT_EQ(fileNameOf(QString(100, QChar(0x9AD8))).toUtf8().size(), 198);
    EXPECT_EQ(frameNumberText(-512), "-00512");
    EXPECT_EQ(frameNumberText(1234567), "1234567");
}

TEST_F(Saving, CallsTheFilesOfNoTwoCamerasAlike) {
    FileNames names({"Layout"});
    for (const auto& [cameras, called] : std::initializer_list<std::pair<const char*, const char*>>{
             {"Gate gATE a/b a:b Roof", "Gate_0 gATE_1 a_b_2 a_b_3 Roof"},
             {"Gate Gate Gate_0", "Gate_0 Gate_1 Gate_0_2"},
             {"Door Roof Track Wall Roof", "Door Roof_1 Track Wall Roof_4"},
             {"Track Layout Door Hall Roof", "Track_0 Layout_1 Door_2 Hall Roof"}}) {
        QList<NamedCamera> known;
        for (const QString& name : QString(cameras).split(' ')) {
            known.append({name, QString::number(known.size())});
        }
        EXPECT_EQ(names.of(known).join(' ').toStdString(), called) << "as some of them were called before";
    }
}

TEST_F(Saving, NeverWritesOverAnotherCamerasFrames) {
    host.camera(3).set(&CameraState::name, "gate");
    answer = Overwrite::All;
    run(orders());
    const QString first = path("Gate_192.168.0.11_00000.png");
    const QImage written(first);
    ASSERT_FALSE(written.isNull());
    host.host.faults().plant(1, "*", {{}, 0, true});
    for (const char* name : {"gate", "GATE_192.168.0.11"}) {
        host.camera(3).set(&CameraState::name, name);
        run(orders());
        EXPECT_EQ(QImage(first), written) << name;
    }
    EXPECT_EQ(files().size(), 2 + 3 + 3);
}

TEST_F(Saving, AsksBeforeItOverwrites) {
    const struct {
        Overwrite answer;
        QStringList outcomes, asked, old;
    } cases[] = {
        {Overwrite::This, {"Gate: 2 of 2 up to 0, saved", NozzleSaved}, {AllFiles[1], AllFiles[2]}, {}},
        {Overwrite::All, {"Gate: 2 of 2 up to 0, saved", NozzleSaved}, {AllFiles[1]}, {}},
        {Overwrite::SkipCamera,
         {"Gate: 1 of 2 up to -1, skipped", "Nozzle/2: 0 of 3 up to 0, skipped"},
         {AllFiles[1], AllFiles[2]},
         {AllFiles[1], AllFiles[2]}},
        {Overwrite::Cancel,
         {"Gate: 1 of 2 up to -1, cancelled", "Nozzle/2: 0 of 3 up to 0, cancelled"},
         {AllFiles[1]},
         {AllFiles[1], AllFiles[2]}},
    };
    for (const auto& one : cases) {
        writeOld(AllFiles[1]);
        writeOld(AllFiles[2]);
        answer = one.answer;
        asked.clear();
        EXPECT_EQ(run(orders()), one.outcomes);
        EXPECT_EQ(asked, one.asked);
        for (const QString& name : {AllFiles[1], AllFiles[2]}) {
            EXPECT_EQ(isOld(name), one.old.contains(name));
        }
        for (const QString& name : files()) {
            QFile::remove(path(name));
        }
    }
}

TEST_F(Saving, RefusesBeforeTheFirstByte) {
    qint64 room = 0;
    const auto refusal = [&](const SaveOrders& wanted) {
        return SaveJob(host.host.cameras(), wanted, [&](const QString& /*folder*/) { return room; }).start();
    };
    const qint64 needed = refusal(orders())->needed;
    EXPECT_GT(needed, 5 * 200) << "five small pictures";
    room = needed - 1;
    EXPECT_EQ(refusal(orders())->available, needed - 1);
    room = needed;
    EXPECT_FALSE(refusal(orders()));
    writeOld("file");
    SaveOrders nowhere = orders();
    nowhere.folder = path("file/below");
    EXPECT_EQ(refusal(nowhere)->needed, -1);
    EXPECT_EQ(files(), QStringList("file"));
}

TEST_F(Saving, GoesOnAfterAFileThatCannotBeWritten) {
    ASSERT_TRUE(QDir().mkpath(path("Gate_00000.png/x")));
    EXPECT_EQ(run(orders()), QStringList({"Gate: 1 of 2 up to -1, failed", NozzleSaved}));
    EXPECT_EQ(failedFile, "Gate_00000.png");
    EXPECT_EQ(files().size(), 4);
}

TEST_F(Saving, LeavesOldPicturesWholeOnAFullDisk) {
    writeOld(AllFiles[1]);
    host.camera(1).set(&CameraState::selectedRange, {100, 100});
    {
        const FullDisk disk(100);
        EXPECT_EQ(run(orders()), QStringList({"Gate: 0 of 1 up to 0, failed", "Nozzle/2: 0 of 3 up to 0, failed"}));
    }
    EXPECT_TRUE(isOld(AllFiles[1]) && files().size() == 1 && !host.camera(1).recording()->saved);
    run(orders());
    EXPECT_TRUE(host.camera(1).recording()->saved);
}

TEST_F(Saving, LosesACameraAtAnyFrameAndNoOther) {
    prepare(2, "Ramp", 99, 101);
    const QStringList ramp = {"Ramp: 0 of 3 up to 0, lost", "Ramp: 1 of 3 up to -1, lost",
                              "Ramp: 2 of 3 up to 0, lost"};
    for (int frame = 0; frame < 3; ++frame) {
        for (const Fault& fault : {Fault{"it is too hot", 0, false}, Fault{{}, 0, true}}) {
            host.host.faults().plantAt(3 + frame, fault);
            EXPECT_EQ(run(orders()), QStringList({"Gate: 2 of 2 up to 0, saved", ramp[frame], NozzleSaved}));
            EXPECT_EQ(files().size(), 5 + frame);
            host.host.faults().clear();
            for (const QString& name : files()) {
                QFile::remove(path(name));
            }
        }
    }
    host.host.faults().plant(3, "readFrame", {"it is too hot", 0, false});
    run(orders(), [&](const SaveJob& /*job*/) { host.camera(3).set(&CameraState::name, "N"); });
    EXPECT_EQ(reason, "it is too hot") << "whatever the camera is called by then";
    host.host.faults().clear();
    prepare(3, "Nozzle/2", 100, 102);
    // The memory is filled anew, or the cameras are others now.
    const auto afterOne = [](const std::function<void()>& work) {
        return [work](SaveJob& job) {
            if (job.outcomes().isEmpty() && job.frame() == 1) {
                work();
            }
        };
    };
    const auto anew = [&] { host.camera(1).keep(1, host.camera(1).recording()); };
    EXPECT_EQ(run(orders(), afterOne(anew)).first(), "Gate: 1 of 2 up to -1, lost");
    EXPECT_EQ(
        run(orders(), afterOne([&] { host.host.setRig(standardRig(3)); })),
        QStringList({"Gate: 1 of 2 up to -1, lost", "Ramp: 0 of 3 up to 0, lost", "Nozzle/2: 0 of 3 up to 0, lost"}));
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
         {"Camera 2 recorded in 1"}},
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
            const QString partition = QStringLiteral(" recorded in %1").arg(camera.partition);
            absent << camera.name + QStringList({" is gone", "", partition}).at(camera.why);
        }
        EXPECT_EQ(absent, one.absent) << one.what;
    }
}

TEST_F(Saving, IsCancelledBetweenFrames) {
    EXPECT_EQ(run(orders(), [](SaveJob& job) { job.cancel(); }),
              QStringList({"Gate: 1 of 2 up to -1, cancelled", "Nozzle/2: 0 of 3 up to 0, cancelled"}));
    EXPECT_EQ(files(), QStringList("Gate_-00001.png"));
}

TEST_F(Saving, LaysTheCamerasSideBySide) {
    SaveOrders layout = orders();
    layout.tracks = tracksOfLayout(sources(), "Layout");
    host.host.faults().plant(1, "readFrame", {"it is too hot", 0, false});
    EXPECT_EQ(run(layout), QStringList({"Gate: 0 of 2 up to -1, lost", "Layout: 3 of 3 up to 2, saved"}));
    EXPECT_EQ(files(), QStringList({"Layout_00000.png", "Layout_00001.png", "Layout_00002.png"}));
    const QImage last(path("Layout_00002.png"));
    ASSERT_EQ(last.size(), QSize(960, 360));
    const QImage right = last.copy(480, 0, 480, 360).convertToFormat(QImage::Format_RGB32);
    EXPECT_EQ(right, drawFrame({"Nozzle/2", Size, 2, 2000, noise(3), {}}, {480, 360}));
    EXPECT_EQ(last.pixel(240, 180), QColor(24, 26, 30).rgb()) << "nothing is shown of the lost one";
}

/// A program that answers as ffmpeg does, and whose videos are the bare frames.
constexpr auto Encoder =
    "#!/bin/sh\n"
    "if [ \"$2\" = -encoders ]; then echo ' V....D mpeg4                MPEG-4'; exit; fi\n"
    "for last; do :; done\n"
    "cat >\"${last#file:}\"\n";

class SavingVideo : public Saving {
protected:
    SavingVideo() { program(Encoder); }

    void program(const QByteArray& script) {
        write(programs.filePath("encoder"), script);
        QFile::setPermissions(programs.filePath("encoder"), QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    }
    SaveOrders video() {
        SaveOrders wanted = orders("video");
        wanted.encoder = {programs.filePath("encoder"), "mpeg4"};
        return wanted;
    }
    qint64 framesIn(const QString& name) const {
        return QFileInfo(path(name)).size() / (qint64(4) * Size.width() * Size.height());
    }

    QTemporaryDir programs;
};

TEST_F(SavingVideo, MakesOneFileACamera) {
    EXPECT_EQ(VideoEncoder::of(video().encoder.program).encoder, "mpeg4");
    EXPECT_FALSE(VideoEncoder::of(path("none")).isUsable());
    host.host.faults().plantAt(5, {"it is too hot", 0, false});
    const auto look = [this](const SaveJob& job) {
        EXPECT_FALSE(job.isRunning() && QFile::exists(path(job.track().fileName + ".mp4"))) << "not complete yet";
    };
    EXPECT_EQ(run(video(), look), QStringList({"Gate: 2 of 2 up to 0, saved", "Nozzle/2: 2 of 3 up to 1, lost"}));
    EXPECT_EQ(files(), QStringList({"Gate.mp4", "Nozzle_2.mp4"}));
    EXPECT_EQ(framesIn("Gate.mp4"), 2);
    EXPECT_EQ(framesIn("Nozzle_2.mp4"), 2) << "what there was before the camera was lost";
    EXPECT_TRUE(QFile::permissions(path("Gate.mp4")) & QFile::ReadOther);
}

TEST_F(SavingVideo, LeavesNoHalfFile) {
    writeOld("Gate.mp4");
    const QString nothing = "Nozzle/2: 0 of 3 up to 0, cancelled";
    EXPECT_EQ(run(video(), [](SaveJob& job) { job.cancel(); }),
              QStringList({"Gate: 0 of 2 up to -1, cancelled", nothing}));
    {
        SaveJob job(host.host.cameras(), video());
        EXPECT_FALSE(job.start());
        EXPECT_TRUE(until([&job] { return job.frame() > 0; }));
    }
    program("#!/bin/sh\necho 'no such encoder' >&2; exit 1\n");
    EXPECT_EQ(run(video()), QStringList({"Gate: 0 of 2 up to 0, failed", "Nozzle/2: 0 of 3 up to 2, failed"}));
    program(QByteArray(Encoder) + "echo 'No space left on device' >&2\n");
    EXPECT_EQ(run(video()), QStringList({"Gate: 0 of 2 up to 0, failed", "Nozzle/2: 0 of 3 up to 2, failed"}));
    EXPECT_EQ(reason, "No space left on device");
    EXPECT_EQ(files(), QStringList("Gate.mp4"));
    EXPECT_TRUE(isOld("Gate.mp4"));
}

TEST_F(SavingVideo, AsksOnceAboutAFileThatStandsInTheWay) {
    writeOld("Gate.mp4");
    answer = Overwrite::This;
    const auto others = [this](const SaveJob& job) {
        if (job.outcomes().size() == 1 && job.frame() == 1) {
            writeOld("Nozzle_2.mp4");
            answer = Overwrite::SkipCamera;
        }
    };
    EXPECT_EQ(run(video(), others), QStringList({"Gate: 2 of 2 up to 0, saved", "Nozzle/2: 0 of 3 up to 2, skipped"}));
    EXPECT_EQ(asked, QStringList({"Gate.mp4", "Nozzle_2.mp4"}));
    EXPECT_EQ(framesIn("Gate.mp4"), 2);
    EXPECT_TRUE(isOld("Nozzle_2.mp4")) << "somebody else has written it meanwhile";
    EXPECT_EQ(files(), QStringList({"Gate.mp4", "Nozzle_2.mp4"}));
}

TEST_F(SavingVideo, HoldsAllFramesForAnotherReader) {
    const QString reader = QStandardPaths::findExecutable("ffprobe");
    if (reader.isEmpty() || !VideoEncoder::installed().isUsable()) {
        GTEST_SKIP() << "ffmpeg is not installed";
    }
    SaveOrders wanted = video();
    wanted.encoder = VideoEncoder::installed();
    host.camera(3).change(
        {{"recordedCustomInfo",
          QVariantList{QVariantMap{{"name", QString(QChar(0x5727))}, {"value", "a=b\nc"}, {"display", true}}}}});
    wanted.tracks = tracksOfEach(sources());
    run(wanted);
    QProcess process;
    process.start(reader, {"-v", "error", "-count_frames", "-show_entries", "stream=nb_read_frames,width,height", "-of",
                           "csv=p=0", path("Nozzle_2.mp4")});
    ASSERT_TRUE(process.waitForFinished());
    EXPECT_EQ(process.readAllStandardOutput().trimmed(), "64,48,3");
    process.start(reader, {"-v", "error", "-show_entries", "format_tags=comment,items", "-of", "default=nk=1:nw=1",
                           path("Nozzle_2.mp4")});
    ASSERT_TRUE(process.waitForFinished());
    const QByteArray description = wanted.tracks[1].metadataOfAll().description;
    EXPECT_TRUE(description.contains("\"frame\":0,\"time\":0.000000,\"lastFrame\":2,\"lastTime\":0.002000"));
    EXPECT_EQ(process.readAllStandardOutput().trimmed(), description + "\n\xe5\x9c\xa7: a=b\\nc");
}

}  // namespace
