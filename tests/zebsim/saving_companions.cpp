#include "Files.h"
#include "support/SavingTest.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

namespace {

class SavingCompanions : public SavingTest {
protected:
    SaveOrders wanted(const char* format = "bmp") {
        SaveOrders all = orders(format);
        all.thumbnail = "_small";
        all.hasInformation = true;
        return all;
    }
    QJsonObject information(const QString& name) {
        const QByteArray text = contentOf(path(name));
        EXPECT_TRUE(text.startsWith("{\n  \"zebsim\": \"recording\",\n  \"version\": 1,\n")) << text.data();
        return QJsonDocument::fromJson(text).object();
    }
    QStringList filesOf(const QString& name) { return information(name)["files"].toVariant().toStringList(); }
};

TEST_F(SavingCompanions, ShowTheFrameAtTheTrigger) {
    const struct {
        const char* what;
        int first, last, step, shown;
        QSize resolution, size;
    } cases[] = {{"in the range", 98, 103, 1, 2, {400, 300}, {320, 240}},
                 {"left out", 97, 103, 2, 1, {400, 300}, {320, 240}},
                 {"before it", 101, 103, 1, 0, {63, 47}, {63, 47}},
                 {"behind it", 90, 99, 1, 0, {300, 400}, {180, 240}}};
    for (const auto& one : cases) {
        prepare(1, "Gate", one.first, one.last);
        host.camera(1).change({{"resolution", QVariantList{one.resolution.width(), one.resolution.height()}}});
        SaveOrders all = wanted();
        all.tracks[0].step = one.step;
        EXPECT_EQ(run(all).filter("saved").size(), 2);
        const QString file = path("Gate_small.jpg");
        EXPECT_EQ(outputOf("identify", {"-format", "%m %w %h", file}),
                  QString("JPEG %1 %2").arg(one.size.width()).arg(one.size.height()).toLatin1());
        const QImage frame = all.tracks[0].picture(one.shown);
        const QImage picture = frame.scaled(one.size, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
        const QByteArray read = readByOthers(file, 8);
        const QByteArray pixels = pixelsOf(picture, 8);
        int differs = 0;
        for (int i = 0; i < pixels.size(); ++i) {
            differs += std::abs(uchar(read[i]) - uchar(pixels[i])) > 60 ? 1 : 0;
        }
        EXPECT_LT(differs, pixels.size() / 1000) << one.what;
        removeFiles();
    }
}

TEST_F(SavingCompanions, TellAllThatIsNeededToOpenTheRecordingAgain) {
    const QString name = QString::fromUtf8("圧力 \"1\"\n");
    host.camera(3).change({{"name", name}, {"recordedShutter", 8000}, {"triggerOffset", 60}});
    host.camera(3).change({{"triggerOffsetEnabled", true}, {"comment", "x"}, {"partitionNames", QStringList("left")}});
    host.camera(3).change({{"recordedCustomInfo", QVariantList{QVariantMap{{"name", "p"}, {"value", name}}}}});
    SaveOrders all = wanted("png");
    all.format.options.depth = 16;
    all.format.options.isLower = true;
    all.date = {{2024, 1, 2}, {3, 4, 5}};
    all.tracks[1].sources[0].setName("as lists call it");
    all.tracks[1].stem = path("n");
    all.tracks[1].step = 2;
    run(all);
    const QString expected =
        R"({"camera":%1,"address":"192.168.0.13","model":"standard","comment":"x","bits":8,"rate":1000,)"
        R"("shutter":8000,"resolution":[63,47],"range":[0,499],"trigger":100,"zero":60,)"
        R"("saved":{"first":100,"last":102,"step":2},"partition":1,"partitionName":"left",)"
        R"("items":[{"name":"p","value":%1,"unit":"","display":false,"usefilename":false}],)"
        R"("date":"2024-01-02T03:04:05","format":{"id":"png","depth":16,"lower":true,"pages":false},)"
        R"("files":["n_00040.png","n_00042.png"],"zebsim":"recording","version":1})";
    const QByteArray json = QString(expected).replace("%1", QString::fromUtf8(R"("圧力 \"1\"\n")")).toUtf8();
    EXPECT_EQ(QJsonDocument(information("n.cih")).toJson().toStdString(),
              QJsonDocument::fromJson(json).toJson().toStdString());
    removeFiles();
    all = wanted("tiff");
    all.format.options.isMultiPage = true;
    run(all);
    EXPECT_EQ(filesOf("Gate.cih"), QStringList("Gate.tif"));
    EXPECT_EQ(information("Gate.cih")["saved"].toObject()["last"], 100);
    removeFiles();
    all.tracks = tracksOfLayout(sources(), "Layout");
    all.tracks[0].stem = path("Layout");
    run(all);
    EXPECT_EQ(files(), QStringList({"Layout.tif", "Layout_small.jpg"}));
}

TEST_F(SavingCompanions, StandOnlyBesideWhatIsComplete) {
    const QStringList all{"a.cih", "a_00000.bmp", "a_00001.bmp", "a_00002.bmp", "a_small.jpg"};
    SaveOrders alone = wanted();
    alone.tracks.erase(alone.tracks.begin());
    alone.tracks[0].stem = path("a");
    int writes = 0;
    int failing = 0;
    alone.diskFault = [&](const QString&, qint64) { return ++writes == failing ? QString("no") : QString(); };
    const char* const failed[] = {"a_00000.bmp", "a_00001.bmp", "a_00002.bmp", "a_small.jpg", "a.cih"};
    for (failing = 1; failing <= 5; ++failing) {
        writes = 0;
        const int frames = std::min(failing - 1, 3);
        EXPECT_EQ(
            run(alone),
            QStringList(QStringLiteral("Nozzle/2: %1 of 3 up to %2, failed").arg(frames).arg(std::max(0, frames - 1))));
        EXPECT_EQ(failedFile, failed[failing - 1]);
        EXPECT_EQ(files().contains("a.cih"), failing == 4) << "it does not go with the small picture";
        EXPECT_FALSE(host.camera(3).recording()->saved);
        removeFiles();
    }
    failing = 0;
    host.host.faults().plantAt(3, {"it is too hot", 0, false});
    EXPECT_EQ(run(alone), QStringList("Nozzle/2: 2 of 3 up to 1, lost"));
    EXPECT_EQ(filesOf("a.cih"), QStringList(all.mid(1, 2)));
    host.host.faults().clear();
    alone.tracks[0].from = 2;
    EXPECT_EQ(run(alone), QStringList("Nozzle/2: 1 of 1 up to 2, failed")) << "nobody has agreed";
    EXPECT_EQ(failedFile, "a_small.jpg");
    alone.tracks[0].from = 3;
    alone.mayReplace = {path("a_small.jpg"), path("a.cih")};
    EXPECT_EQ(run(alone), QStringList("Nozzle/2: 0 of 0 up to 0, saved"));
    EXPECT_EQ(filesOf("a.cih"), QStringList(all.mid(1, 3)));
    EXPECT_EQ(files(), all);
    EXPECT_TRUE(host.camera(3).recording()->saved);
    removeFiles();
    alone.tracks[0].from = 0;
    alone.diskFault = [&](const QString&, qint64) {
        if (files().size() == 4) {
            QFile::remove(path("a_small.jpg"));
        }
        return QString();
    };
    EXPECT_EQ(run(alone), QStringList("Nozzle/2: 3 of 3 up to 2, failed"));
    EXPECT_EQ(failedFile, "a_small.jpg") << "it has gone";
    removeFiles();
    host.host.faults().plant(3, "readFrame", {"it is too hot", 0, false});
    run(alone);
    EXPECT_EQ(files(), QStringList()) << "there is nothing to tell of";
}

}  // namespace
