#include "FileMetadata.h"
#include "Files.h"
#include "support/SavingTest.h"

namespace {

/// A program that answers as ffmpeg does, and whose videos are the bare frames.
constexpr auto Encoder =
    "#!/bin/sh\n"
    "if [ \"$2\" = -encoders ]; then echo ' V....D mpeg4                MPEG-4'; exit; fi\n"
    "for last; do :; done\n"
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
    fails(QByteArray(Encoder) + "echo 'No space left on device' >&2\n", "No space left on device");
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

TEST_F(SavingVideo, HoldsAllFramesForAnotherReader) {
    const auto probed = [this](const QStringList& arguments) {
        return outputOf("ffprobe", QStringList{"-v", "error"} + arguments + QStringList(path("Nozzle_2.mp4")))
            .trimmed();
    };
    host.camera(3).change(
        {{"recordedCustomInfo",
          QVariantList{QVariantMap{{"name", QString(QChar(0x5727))}, {"value", "a=b\nc"}, {"display", true}}}}});
    SaveOrders wanted = video();
    wanted.encoder = VideoEncoder::installed();
    run(wanted);
    EXPECT_EQ(probed({"-count_frames", "-show_entries", "stream=nb_read_frames,width,height", "-of", "csv=p=0"}),
              "64,48,3");
    const QByteArray description = wanted.tracks[1].metadataOfAll().description;
    EXPECT_TRUE(description.contains("\"frame\":0,\"time\":0.000000,\"lastFrame\":2,\"lastTime\":0.002000"));
    EXPECT_EQ(probed({"-show_entries", "format_tags=comment,items", "-of", "default=nk=1:nw=1"}),
              description + "\n\xe5\x9c\xa7: a=b\\nc");
}

}  // namespace
