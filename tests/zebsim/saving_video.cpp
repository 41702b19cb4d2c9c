#include "FileMetadata.h"
#include "Files.h"
#include "FullDisk.h"
#include "VideoTrials.h"
#include "support/SavingTest.h"

#include <QRegularExpression>

namespace {

/// A program that answers as ffmpeg does, and whose videos are the bare frames.
constexpr auto Encoder =
    "#!/bin/sh\n"
    "for last; do [ \"$last\" = -encoders ] && exec echo ' V....D mpeg4                MPEG-4'; done\n"
    "case \"$*\" in *-progress*) "
    "eval \"$(echo \"$*\" | sed 's/.* -i file:\\([^ ]*\\) .*/file=\\1/')\"; "
    "exec echo frame=$(($(stat -Lc %s $file) / 11844));; esac\n"
    "cat >\"${last#file:}\"\n";

class SavingVideo : public SavingTest {
protected:
    SavingVideo() { program(Encoder); }

    void program(const QByteArray& script) {
        write(programs.filePath("encoder"), script);
        QFile::setPermissions(programs.filePath("encoder"), QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    }
    SaveOrders video() {
        SaveOrders wanted = orders("video");
        wanted.encoder = {programs.filePath("encoder")};
        return wanted;
    }
    qint64 framesIn(const QString& name) const {
        return QFileInfo(path(name)).size() / (qint64(4) * Size.width() * Size.height());
    }

    QTemporaryDir programs;
};

TEST_F(SavingVideo, MakesOneFileACamera) {
    write(path("Gate.mp4"), "old");
    for (const DOCKEY lost : {3, 1}) {
        host.host.faults().plant(lost, "readFrame", {"it is too hot", 0, false});
        SaveOrders wanted = video();
        wanted.mayReplace = {path("Gate.mp4")};
        EXPECT_EQ(run(wanted), lost == 3
                                   ? QStringList({"Gate: 2 of 2 up to 0, saved", "Nozzle/2: 0 of 3 up to 0, lost"})
                                   : QStringList({"Gate: 0 of 2 up to 0, lost", "Nozzle/2: 3 of 3 up to 2, saved"}));
        host.host.faults().clear();
    }
    EXPECT_EQ(files(), QStringList({"Gate.mp4", "Nozzle_2.mp4"}));
    EXPECT_EQ(framesIn("Gate.mp4"), 2);
    EXPECT_EQ(framesIn("Nozzle_2.mp4"), 3);
    EXPECT_TRUE(QFile::permissions(path("Nozzle_2.mp4")) & QFile::ReadOther);
    removeFiles();
    host.host.faults().plantAt(3, {"it is too hot", 0, false});
    SaveOrders alone = video();
    alone.tracks.erase(alone.tracks.begin());
    EXPECT_EQ(run(alone), QStringList("Nozzle/2: 2 of 3 up to 1, lost"));
    EXPECT_EQ(framesIn("Nozzle_2.mp4"), 2) << "what there was before the camera was lost";
}

TEST_F(SavingVideo, LeavesNoHalfFile) {
    write(path("Gate.mp4"), "old");
    SaveOrders wanted = video();
    const auto fails = [&](const QByteArray& script, const char* why) {
        program(script);
        EXPECT_EQ(run(wanted), QStringList({"Gate: 0 of 2 up to 0, failed", "Nozzle/2: 0 of 3 up to 0, failed"}));
        EXPECT_EQ(reason, why);
        EXPECT_EQ(files(), QStringList("Gate.mp4"));
        EXPECT_EQ(contentOf(path("Gate.mp4")), "old");
    };
    wanted.mayReplace = {path("Gate.mp4")};
    fails("#!/bin/sh\necho 'no such encoder' >&2; exit 1\n", "no such encoder");
    fails("#!/bin/sh\ncat >/dev/null; exit 1\n", "the program that makes videos has failed");
    fails("#!/bin/sh\nhead -c 9000 >/dev/null; kill -9 $$\n", "the program that makes videos has failed");
    fails(QByteArray(Encoder) + "echo 'No space left on device' >&2\n", "No space left on device");
    wanted.encoder = VideoEncoder::installed();
    {
        const FullDisk full(1000);
        fails({}, "File too large");
    }
    wanted.encoder.program = path("none");
    fails({}, "No such file or directory");
    program(Encoder);
    EXPECT_EQ(run(video()), QStringList({"Gate: 0 of 2 up to 0, failed", "Nozzle/2: 3 of 3 up to 2, saved"}));
    EXPECT_EQ(contentOf(path("Gate.mp4")), "old") << "nobody has agreed";
}

TEST_F(SavingVideo, WaitsForAnEncoderNeitherWithOtherTracksNorWhenItIsCancelled) {
    prepare(1, "Gate", 0, 499);
    prepare(3, "Nozzle/2", 0, 499);
    for (const QByteArray does : {"exec sleep 1000", "cat >/dev/null; exec sleep 1000"}) {
        program("#!/bin/sh\ncase \"$*\" in *camera=Gate*) " + does + ";; esac\n" +
                QByteArray(Encoder).mid(int(qstrlen("#!/bin/sh\n"))));
        const int most = does.startsWith("cat") ? 500 : 1;
        SaveJob job(host.host.cameras(), video());
        job.start();
        ASSERT_TRUE(until([&] { return job.done()[0] >= most && framesIn("Nozzle_2.mp4") == 500; })) << does.data();
        job.cancel();
        ASSERT_TRUE(until([&job] { return !job.isRunning(); }));
        EXPECT_EQ(told(job),
                  QStringList({"Gate: 0 of 500 up to 0, cancelled", "Nozzle/2: 500 of 500 up to 399, saved"}));
        EXPECT_EQ(files(), QStringList("Nozzle_2.mp4"));
        removeFiles();
    }
}

TEST_F(SavingTest, MakesAPageOfEachFrame) {
    for (const int depth : {8, 16}) {
        SaveOrders wanted = orders("tiff");
        wanted.format.options.depth = depth;
        wanted.format.options.isMultiPage = true;
        wanted.mayReplace = {path("Gate.tif"), path("Nozzle_2.tif")};
        EXPECT_EQ(run(wanted), QStringList({"Gate: 2 of 2 up to 0, saved", "Nozzle/2: 3 of 3 up to 2, saved"}));
        EXPECT_EQ(files(), QStringList({"Gate.tif", "Nozzle_2.tif"}));
        QByteArray pixels;
        for (int index = 0; index < 3; ++index) {
            pixels += pixelsOf(wanted.tracks[1].picture(index), depth);
        }
        EXPECT_EQ(readByOthers(path("Nozzle_2.tif"), depth), pixels) << depth;
        EXPECT_EQ(contentOf(path("Nozzle_2.tif")).count("{\"camera\""), 3) << "a text each";
    }
}

/// What another program finds in the video of the third camera.
QString probed(const QString& file, const QStringList& arguments) {
    return outputOf("ffprobe", QStringList{"-v", "error"} + arguments + QStringList(file)).trimmed();
}

class SavingVideoFormats : public SavingVideo {
protected:
    /// Whether the format is offered; then the file has all frames, and else there is none.
    bool isMade(const QString& container, const VideoCodec& codec, const QString& rate, const QSize& size) {
        removeFiles();
        host.camera(3).change({{"resolution", QVariantList{size.width(), size.height()}}});
        host.camera(3).change({{"selectedRange", QVariantList{100, 111}}});
        SaveOrders wanted = orders(container);
        wanted.format =
            chosen({{"format", container}, {container + "/codec", codec.name}, {container + "/framerate", rate}})
                .format;
        wanted.tracks.erase(wanted.tracks.begin());
        wanted.encoder = VideoEncoder::installed();
        const QString fault = VideoTrials::installed().fault(container, wanted.format.video);
        const QStringList told = run(wanted);
        if (!fault.isEmpty()) {
            EXPECT_EQ(told, QStringList("Nozzle/2: 0 of 12 up to 0, failed"));
            EXPECT_EQ(files(), QStringList());
            return false;
        }
        EXPECT_EQ(told, QStringList("Nozzle/2: 12 of 12 up to 11, saved")) << reason.toStdString();
        const QStringList found = probed(wanted.fileOf(wanted.tracks[0], 0),
                                         {"-count_packets", "-show_entries",
                                          "stream=nb_read_packets,r_frame_rate,pix_fmt", "-of", "default=nk=1:nw=1"})
                                      .split('\n');
        EXPECT_EQ(found.value(2), "12");
        const QStringList parts = found.value(1).split('/');
        EXPECT_NEAR(parts.value(0).toDouble() / parts.value(1).toDouble(), rate.toDouble(), 0.001);
        EXPECT_EQ(found.value(0) == "yuv420p", codec.pixels == "yuv420p");
        return true;
    }
};

TEST_F(SavingVideoFormats, HoldAllFramesOrAreNotOffered) {
    // ./test long tries each pair at each rate.
    const bool isLong = qEnvironmentVariableIsSet("WREN_LONG");
    const QStringList some{"avi RAW 1",      "mov H264 29.97", "mp4 MJPEG 1000",
                           "avi MPEG2 1000", "mov MPEG4 25",   "mp4 RAW 25"};
    QStringList refused;
    for (const QString container : {"avi", "mov", "mp4"}) {
        for (const VideoCodec& codec : videoCodecs()) {
            for (const QString rate : {"1", "25", "29.97", "1000"}) {
                const QString what = QStringList{container, codec.name, rate}.join(' ');
                SCOPED_TRACE(what.toStdString());
                if (isLong || some.contains(what)) {
                    const bool isOffered = isMade(container, codec, rate, {64, 48});
                    EXPECT_EQ(isMade(container, codec, rate, {63, 47}), isOffered) << "of odd sides";
                    refused += isOffered ? QStringList() : QStringList(what);
                }
            }
        }
    }
    const QStringList never{"avi MPEG2 1000", "mp4 RAW 25"};
    const QStringList neverOfAll{"avi MPEG2 1000", "mov MPEG2 1000",    "mp4 RAW 1",       "mp4 RAW 25",
                                 "mp4 RAW 29.97",  "mp4 RAW 1000",      "mp4 MPEG2 1000",  "mp4 HUFFYUV 1",
                                 "mp4 HUFFYUV 25", "mp4 HUFFYUV 29.97", "mp4 HUFFYUV 1000"};
    EXPECT_EQ(refused, isLong ? neverOfAll : never);
}

TEST_F(SavingVideo, KeepsColoursThatAreToBeKept) {
    const struct {
        const char *container, *codec;
        bool isLossless;
    } cases[] = {{"avi", "RAW", false},
                 {"mov", "RAW", false},
                 {"avi", "HUFFYUV", false},
                 {"mov", "HUFFYUV", false},
                 {"mp4", "H264", true}};
    for (const auto& one : cases) {
        SaveOrders wanted = orders(one.container);
        wanted.format.video.codec = one.codec;
        wanted.format.video.isLossless = one.isLossless;
        wanted.format.video.crf = 51;
        wanted.encoder = VideoEncoder::installed();
        removeFiles();
        run(wanted);
        QByteArray pixels;
        for (int index = 0; index < 3; ++index) {
            pixels += pixelsOf(wanted.tracks[1].picture(index), 8);
        }
        const QString file = wanted.fileOf(wanted.tracks[1], 0);
        const QByteArray read =
            outputOf("ffmpeg", {"-v", "error", "-i", file, "-f", "rawvideo", "-pix_fmt", "rgb24", "-"});
        EXPECT_TRUE(read == pixels) << one.container << ' ' << one.codec;
    }
}

TEST_F(SavingVideo, IsMadeAsItsOptionsSay) {
    const auto made = [&](QHash<QString, QVariant> prefs) {
        SaveOrders wanted = orders("mp4");
        prefs["format"] = "mp4";
        wanted.format = chosen(prefs).format;
        wanted.encoder = VideoEncoder::installed();
        run(wanted);
        const QByteArray bytes = contentOf(path("Nozzle_2.mp4"));
        removeFiles();
        return bytes;
    };
    // That encoder leaves its settings in the file.
    EXPECT_TRUE(made({{"mp4/crf", 33}}).contains("crf=33.0"));
    EXPECT_TRUE(made({{"mp4/crf", 99}}).contains("crf=18.0"));
    EXPECT_TRUE(made({{"mp4/qualitypreset", "ultrafast"}}).contains("subme=0"));
    EXPECT_TRUE(made({{"mp4/qualitypreset", "-i /etc/passwd"}}).contains("subme=7"));
    EXPECT_TRUE(made({{"mp4/lossless", true}, {"mp4/crf", 33}}).contains("qp=0"));
    for (const char* codec : {"MJPEG", "MPEG2", "MPEG4"}) {
        const int least = made({{"mp4/codec", codec}, {"mp4/quality", 0}}).size();
        const int most = made({{"mp4/codec", codec}, {"mp4/quality", 100}}).size();
        EXPECT_TRUE(least > 0 && 2 * least < most) << codec << ' ' << least << ' ' << most;
    }
}

TEST_F(SavingVideo, SaysWhatTheProgramLacks) {
    const auto fault = [&](const QByteArray& script) {
        program(script);
        return VideoTrials(VideoEncoder{programs.filePath("encoder")}).fault("mp4", {}).toStdString();
    };
    const QByteArray tells = "#!/bin/sh\ncase \"$*\" in *-encoders*) echo ' V....D libx264    x'; exit;; esac\n";
    EXPECT_EQ(VideoTrials(VideoEncoder{}).fault("mp4", {}), "Video needs the program ffmpeg, which is not installed.");
    EXPECT_EQ(fault(Encoder), "The installed ffmpeg has no encoder libx264, which H264 needs.");
    EXPECT_EQ(fault(tells + "echo oh >&2; exit 1\n"), "The installed ffmpeg makes no MP4 files with H264.");
    EXPECT_EQ(fault(tells + "kill -9 $$\n"), "The installed ffmpeg makes no MP4 files with H264.");
    EXPECT_NE(formatFault("mraw"), "");
    EXPECT_EQ(formatFault("png"), "");
}

TEST_F(SavingVideo, IsNoneWhenFramesAreMissing) {
    host.camera(3).change({{"selectedRange", QVariantList{100, 123}}});
    SaveOrders wanted = orders("avi");
    wanted.format.video.codec = "MPEG2";
    wanted.format.video.rate = 1000;
    wanted.encoder = VideoEncoder::installed();
    EXPECT_EQ(run(wanted).last(), "Nozzle/2: 0 of 24 up to 0, failed");
    EXPECT_EQ(failedFile, "Nozzle_2.avi");
    EXPECT_TRUE(QRegularExpression("^[1-9] of its 24 frames are in it$").match(reason).hasMatch())
        << reason.toStdString();
    EXPECT_FALSE(files().contains("Nozzle_2.avi"));
}

TEST_F(SavingVideo, HoldsAllFramesForAnotherReader) {
    const QString file = path("Nozzle_2.mp4");
    host.camera(3).change(
        {{"recordedCustomInfo",
          QVariantList{QVariantMap{{"name", QString(QChar(0x5727))}, {"value", "a=b\nc"}, {"display", true}}}}});
    SaveOrders wanted = video();
    wanted.encoder = VideoEncoder::installed();
    run(wanted);
    EXPECT_EQ(probed(file, {"-count_frames", "-show_entries", "stream=nb_read_frames,width,height", "-of", "csv=p=0"}),
              "64,48,3");
    const QByteArray description = wanted.tracks[1].metadataOfAll().description;
    EXPECT_TRUE(description.contains("\"frame\":0,\"time\":0.000000,\"lastFrame\":2,\"lastTime\":0.002000"));
    EXPECT_EQ(probed(file, {"-show_entries", "format_tags=comment,items", "-of", "default=nk=1:nw=1"}),
              description + "\n\xe5\x9c\xa7: a=b\\nc");
}

}  // namespace
