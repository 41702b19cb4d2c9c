#include "DOC_Control.h"
#include "DOC_Frames.h"
#include "DOC_Image.h"
#include "DOC_Interface.h"
#include "Files.h"
#include "HostDisk.h"
#include "HostNameSource.h"
#include "HostNamedDocument.h"
#include "SavePlan.h"
#include "TargetDisk.h"
#include "TargetPaths.h"
#include "support/SavingTest.h"

#include <QPixmap>

namespace {

/// The recordings of two partitions of the first camera are saved as "Gate_1" and "Gate_2".
class FileDocuments : public SavingTest {
protected:
    FileDocuments() {
        host.camera(1).change({{"partitions", 2}, {"partitionNames", QStringList({"left", "right"})}});
        host.camera(1).change({{"comment", "noted"}, {"partition", 2}});
        prepare(1, "Gate", 101, 104);
        host.camera(1).change({{"recordedCustomInfo", QVariantList{QVariantMap{{"name", "TestNo"}, {"value", "T9"}}}}});
        SaveOrders all = orders("png");
        all.hasInformation = true;
        all.tracks.resize(2);
        for (int i = 0; i < 2; ++i) {
            all.tracks[std::size_t(i)].stem = path(QStringLiteral("Gate_%1").arg(i + 1));
        }
        EXPECT_EQ(run(all).filter("saved").size(), 2);
        pictures = {all.tracks[0].picture(0), all.tracks[1].picture(0)};
    }

    DocKeyList open(const QStringList& names) {
        QStringList paths;
        for (const QString& name : names) {
            paths << path(name);
        }
        docs.media().openFiles(paths);
        return docs.getDocKeys();
    }

    SimDocManager& docs = host.host.docManager();
    QList<QImage> pictures;
};

TEST_F(FileDocuments, AreOneForEachRecordingAndStandBesideTheCameras) {
    const DocKeyList cameras = docs.getDocKeys();
    write(path("other.cih"), "Camera: other\n");
    QFile::remove(path("Gate_2_00002.png"));
    const DocKeyList keys = open({"Gate_1.cih", "other.cih", "gone.cih", "Gate_2.cih", "Gate_1.cih"});
    ASSERT_EQ(keys.size(), 2);
    EXPECT_TRUE(host.host.isFileMode());
    ASSERT_EQ(host.desk.shown.size(), 1) << "one message";
    EXPECT_EQ(host.desk.shown[0].list, QStringList({path("other.cih") + ": it is no recording of this program",
                                                    path("gone.cih") + ": No such file or directory",
                                                    path("Gate_2.cih") + ": 1 of its files are missing"}));
    EXPECT_EQ(docs.getSelectedDocKeys(0), keys.mid(0, 1)) << "to be played";
    for (int i = 0; i < 2; ++i) {
        DOC_Interface& doc = *host.doc(keys[i]);
        EXPECT_EQ(doc.getPartitionList(), QList<PARTITIONNUMBER>{PARTITIONNUMBER(i + 1)});
        EXPECT_EQ(doc.getPartitionName(PARTITIONNUMBER(i + 1)), i == 0 ? "left" : "right");
        EXPECT_EQ(doc.getSourceFilePath(), path(QStringLiteral("Gate_%1.cih").arg(i + 1)));
        EXPECT_EQ(doc.getOriginalName(), QStringLiteral("Gate_%1").arg(i + 1));
        EXPECT_EQ(doc.control().getCameraName(1), "Gate");
        EXPECT_EQ(doc.image().getComment(), "noted");
        EXPECT_TRUE(doc.isConnected() && !doc.isMemoryData());
        const QPixmap preview = doc.image().getPreview(11, Size.width(), Size.height(), PARTITIONNUMBER(i + 1), 0, {});
        EXPECT_EQ(preview.toImage().convertToFormat(QImage::Format_RGB32), pictures[i]);
    }
    DOC_Interface& right = *host.doc(keys[1]);
    EXPECT_EQ(right.frames().getFirstFrame(0, 0), 101);
    EXPECT_EQ(right.frames().getRecordedData(2).selectEnd, 104);
    EXPECT_EQ(right.control().getCustomInfoList().value(0)["value"], "T9");
    EXPECT_NE(thrownBy([&] { host.host.cameraOps().setRecordRate({&right}, 1000); }).find("no camera"),
              std::string::npos);
    EXPECT_EQ(open({"Gate_2.cih"}), keys) << "it is open";
    EXPECT_FALSE(host.host.cameras().find(keys[0])->recording()->saved);

    host.host.setRig(standardRig(5));
    docs.deleteAllDocs(0, 0);
    EXPECT_EQ(docs.getDocKeys(), keys);
    DOC_Interface& held = *host.doc(keys[0]);
    docs.files().closeAll();
    EXPECT_EQ(held.getKey(), keys[0]) << "who has one may use it until the turn is over";
    EXPECT_FALSE(held.image().getPreview(11, 10, 10, 1, 0, {}).isNull());
    EXPECT_EQ(docs.getDocKeys(), DocKeyList());
    EXPECT_EQ(docs.getDoc(keys[0], 1), nullptr);
    EXPECT_NE(open({"Gate_1.cih"}), keys.mid(0, 1)) << "no key is used twice";
}

TEST_F(FileDocuments, WaitForTheEndOfARecording) {
    host.camera(2).set(&CameraState::recordState, zeb::RecordRecording);
    open({"Gate_1.cih"});
    EXPECT_TRUE(host.host.isLiveMode());
    EXPECT_EQ(host.host.cameras().files().size(), 1U);
}

TEST_F(FileDocuments, GiveTheirNamesToWhatIsMadeOfThem) {
    const DOCKEY key = open({"Gate_2.cih"}).value(0);
    const struct {
        const char* what;
        QHash<QString, QVariant> prefs;
        QString expected;
    } cases[] = {
        {"chosen", {{"filename", "shot"}}, "/out/shot"},
        {"original", {{"filenameasoriginal", true}, {"dirasoriginal", true}}, path("Gate_2")},
        {"no partition", {{"filename", "shot"}, {"filenameaspartitionname", true}}, "/out/shot"},
        {"session alone",
         {{"filename", "shot"},
          {"filenameadddetail", true},
          {"filenameadddetails", "name,number"},
          {"filenameaddnumber", true},
          {"filenameaddnumbercameranodigits", 2},
          {"filenameaddnumbersessionnodigits", 3}},
         "/out/shot_Gate_S001"},
        {"below", {{"filename", "x"}, {"subdir", true}, {"subdirname", "sub"}}, "/out/sub/x"},
    };
    for (const auto& one : cases) {
        for (const char* family : {"convert/", "export/"}) {
            const QHash<QString, QVariant> none = {{"dir", "/out"},
                                                   {"dirasoriginal", false},
                                                   {"filename", ""},
                                                   {"filenameasoriginal", false},
                                                   {"groupdir", false},
                                                   {"subdir", false},
                                                   {"filenameadddetail", false},
                                                   {"filenameaspartitionname", false}};
            for (const auto& prefs : {none, one.prefs}) {
                for (auto pref = prefs.begin(); pref != prefs.end(); ++pref) {
                    host.host.prefs().setValue(family + pref.key(), *pref);
                }
            }
            HostNameSource source(host.host);
            const HostNamedDocument document(*host.doc(key));
            const bool isConversion = QString(family) == "convert/";
            TargetPaths out;
            composeTargets(source, isConversion ? zeb::ConvertedFile : zeb::ImageFile, &document, false,
                           QDateTime::currentDateTime(), 0, out);
            EXPECT_EQ(out.paths.value(2), one.expected) << one.what << ' ' << family;
        }
    }
}

TEST_F(FileDocuments, AreNotReplacedByWhatIsMadeOfThem) {
    open({"Gate_1.cih", "Gate_2.cih"});
    QDir(folder.path()).mkdir("real");
    EXPECT_TRUE(QFile::link(folder.path(), path("real/way")));
    const struct {
        const char* format;
        const char* folder;
        const char* name;
        const char* source;
        /// One of them is open, and not in the save.
        bool isAlone = false;
    } cases[] = {{"png", "", "Gate_1", "Gate_1.cih"},
                 {"png", "", "Gate_1", "Gate_1.cih", true},
                 {"png", "real/way/", "Gate_2", "Gate_2_00001.png"},
                 {"bmp", "", "Gate_2", "Gate_2.cih"},
                 {"bmp", "", "Gate_3", nullptr}};
    for (const auto& one : cases) {
        SaveOrders all{saveFormat(one.format), {}};
        all.hasInformation = true;
        all.tracks = tracksOfEach(saveSources(host.host.cameras()));
        std::swap(all.tracks[0], all.tracks[1]);
        all.tracks.resize(one.isAlone ? 1 : 2, all.tracks[0]);
        HostDisk disk(host.host.shelf(), host.host.cameras());
        const SavePlan plan =
            planOf(all, {{path(one.folder), {}, {}, one.name}, {path("elsewhere"), {}, {}, "x"}}, disk);
        QStringList sources;
        for (const PlanEntry& entry : plan.entries) {
            sources += entry.kind == PlanEntry::IsOpen ? QStringList(QFileInfo(entry.path).fileName()) : QStringList();
        }
        EXPECT_EQ(sources.join('|'), QString(one.source)) << one.name;
        EXPECT_EQ(plan.isPossible(), one.source == nullptr);
    }
}

}  // namespace
