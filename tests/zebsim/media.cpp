#include "DOC_Interface.h"
#include "DOC_Storage.h"
#include "Files.h"
#include "HostDisk.h"
#include "HostWindows.h"
#include "MediaRoom.h"
#include "support/SavingTest.h"

#include <QDirIterator>

#include <cerrno>

namespace {

/// A host with an SD card that holds two recordings, and what its user types as passwords.
class Media : public SavingTest, public HostWindows {
protected:
    Media() {
        host.host.setWindows(this);
        SaveOrders saved = orders();
        saved.hasInformation = true;
        for (SaveTrack& track : saved.tracks) {
            track.stem = path("card/sub/" + QFileInfo(track.stem).fileName());
        }
        EXPECT_EQ(run(saved).filter("saved").size(), 2);
        putIn({RigMedium::SdCard, "CARD", path("card"), 1 << 20, {}, false});
    }
    ~Media() override { host.host.setWindows(nullptr); }

    bool askPassword(const QString&, const PasswordTest& fits) override { return fits(typed); }
    std::optional<QString> askNewPassword(const QString&, const PasswordTest& fits) override {
        return !fits || fits(typed) ? std::optional(wanted) : std::nullopt;
    }

    MediaShelf& shelf() { return host.host.shelf(); }
    SimMedia& media() { return host.host.docManager().media(); }
    MediaShelf::Held putIn(const RigMedium& medium) { return shelf().putIn(medium); }
    MediaShelf::Held card() { return shelf().find(RigMedium::SdCard, QStringLiteral("CARD")); }
    DocKeyList listed() { return host.host.docManager().getTemporarySaveDocKeys(); }
    /// Opens the card. Answers the first of its documents.
    DOC_Interface* open() {
        host.host.docManager().openSdDrive(card()->place().drive);
        return host.doc(listed().value(0));
    }
    QStringList below(const QString& top) {
        QStringList names;
        QDirIterator all(path(top), QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot,
                         QDirIterator::Subdirectories);
        while (all.hasNext()) {
            all.next();
            names << all.fileName();
        }
        names.sort();
        return names;
    }

    QString typed;
    QString wanted;
};

TEST_F(Media, OpenWithTheirRecordings) {
    QFile::remove(path("card/sub/Nozzle_2_00001.png"));
    const std::optional<zeb::MediumData> data = open()->storage().getMediumData(1);
    EXPECT_EQ((QStringList{data->fileName, data->cameraName, data->driveName, data->serialNo}),
              (QStringList{"Gate.cih", "Gate", "D:", "192.168.0.11"}));
    EXPECT_EQ(host.host.docManager().getSdDriveMask(), 8u);
    EXPECT_FALSE(data->isMarked);
    EXPECT_TRUE(host.doc(listed()[1])->storage().getMediumData(1)->isMarked) << "a picture of it is missing";
    EXPECT_FALSE(host.doc(1)->storage().getMediumData(1)) << "a camera is on no medium";
    EXPECT_TRUE(host.desk.take().join(' ').contains("Not all recordings of CARD"));

    media().close(RigMedium::SdCard);
    EXPECT_EQ(listed(), DocKeyList());
    int drive = 0;
    EXPECT_FALSE(host.host.docManager().getOpenSdDrive(drive));
}

TEST_F(Media, GoAtAnyStep) {
    const DOCKEY key = open()->getKey();
    const MediaShelf::Held held = card();
    shelf().pullOut(held);
    EXPECT_EQ(listed(), DocKeyList());
    EXPECT_EQ(host.doc(key), nullptr);
    EXPECT_EQ(host.desk.take(), QStringList("CARD was pulled out. Its recordings are closed."));
    EXPECT_FALSE(held->erase());
    EXPECT_EQ(held->recordings().size(), 2) << "nothing is erased of what is out";
    const auto drive = int(held->place().drive);
    EXPECT_EQ(thrownBy([&] { host.host.docManager().openSdDrive(drive); }), "D: is not there any more.");
    EXPECT_FALSE(media().formatMedium(RigMedium::SdCard, held->place()));

    putIn({RigMedium::SdCard, "CARD", path("card"), 0, {}, false});
    open();
    QDir(path("card")).removeRecursively();
    EXPECT_EQ(shelf().media().size(), 0u);
    shelf().lookAround();
    EXPECT_EQ(listed(), DocKeyList()) << "a folder that is deleted is a medium that was pulled out";
}

TEST_F(Media, CostASaveWhatItReadsFromThem) {
    open();
    DocKeyList keys = listed();
    keys.append(1);
    SaveOrders import{saveFormat("png"), tracksOfEach(saveSources(host.host.cameras(), keys))};
    int number = 0;
    for (SaveTrack& track : import.tracks) {
        track.stem = path(QString("import%1").arg(++number));
    }
    SaveJob job(host.host.cameras(), import);
    shelf().pullOut(card());
    job.start();
    EXPECT_TRUE(until([&job] { return !job.isRunning(); }));
    const QStringList ends = told(job);
    EXPECT_EQ(ends.filter("lost").size(), 2) << ends.join('|').toStdString();
    EXPECT_EQ(ends.filter(QRegularExpression("^Gate.*saved")).size(), 1)
        << "the camera's own goes on: " << ends.join('|').toStdString();
}

TEST_F(Media, AreOpenedByTheirPasswordAlone) {
    const RigMedium settings{zeb::QuikDrive, "Quik", path("quik"), 0, "s3cret", false};
    const zeb::Medium place = putIn(settings)->place();
    EXPECT_TRUE(media().isMediumLocked(zeb::QuikDrive, place));
    EXPECT_EQ(thrownBy([&] { media().openMedium(zeb::QuikDrive, place); }), "Quik is locked by a password.");
    EXPECT_FALSE(media().formatMedium(zeb::QuikDrive, place));
    typed = "wrong";
    EXPECT_FALSE(media().unlockMedium(zeb::QuikDrive, place));
    EXPECT_EQ(media().setMediumPassword(zeb::QuikDrive, place), std::nullopt) << "the old one is asked for";
    typed = "s3cret";
    EXPECT_TRUE(media().unlockMedium(zeb::QuikDrive, place));
    EXPECT_FALSE(media().isMediumLocked(zeb::QuikDrive, place));
    wanted = "n3w";
    EXPECT_EQ(media().setMediumPassword(zeb::QuikDrive, place), true);

    shelf().pullOut(shelf().find(zeb::QuikDrive, place));
    putIn(settings);
    EXPECT_TRUE(media().isMediumLocked(zeb::QuikDrive, place)) << "after a restart as well";
    EXPECT_FALSE(media().unlockMedium(zeb::QuikDrive, place)) << "the old one is the old one";
    typed = "n3w";
    wanted.clear();
    EXPECT_EQ(media().setMediumPassword(zeb::QuikDrive, place), true);
    EXPECT_FALSE(media().hasMediumPassword(zeb::QuikDrive, place));
    const QString told = host.calls().join(' ') + contentOf(path("quik/.zebsim-medium"));
    EXPECT_FALSE(told.contains("s3cret") || told.contains("n3w")) << told.toStdString();
}

TEST_F(Media, AreErasedInTheirFolderAlone) {
    QDir().mkpath(path("outside"));
    write(path("outside/file"), "kept");
    QFile::link(path("outside"), path("card/sub/link"));
    QFile::link(path("outside/file"), path("card/.hidden"));
    open()->storage().convertDataName("Crash", 2, false);
    const qint64 used = card()->use().used;
    EXPECT_TRUE(media().formatMedium(RigMedium::SdCard, card()->place()));
    EXPECT_EQ(below("card"), QStringList(".zebsim-medium"));
    EXPECT_EQ(below("outside"), QStringList("file"));
    EXPECT_EQ(listed(), DocKeyList());
    EXPECT_GT(used, 0);
    EXPECT_EQ(card()->use().written, used) << "what was written to it stays known";
    EXPECT_FALSE(contentOf(path("card/.zebsim-medium")).contains("Crash"));
}

TEST_F(Media, NameCompareAndDeleteTheirRecordings) {
    const DOCKEY key = open()->getKey();
    // A box ends the turn in which a document lives.
    const auto gate = [this, key]() -> DOC_Storage& { return host.doc(key)->storage(); };
    gate().convertDataName("<b>Crash</b>", 3, false);
    EXPECT_EQ(gate().getMediumData(1)->dataName, "<b>Crash</b>_3");
    const QVariantMap record{{"datano", 1}, {"serialno", "192.168.0.11"}};
    const QVariantMap gone{{"datano", 9}, {"serialno", "192.168.0.11"}};
    media().checkSaved({record, gone}, path("card"));
    EXPECT_EQ(host.desk.shown.last().list,
              (QStringList{"Gate, Gate.cih: saved", "9: the recording is not there any more"}));
    media().checkSaved({record}, folder.path() + "/none");
    EXPECT_EQ(host.desk.shown.last().list, QStringList("Gate, Gate.cih: not saved"));
    EXPECT_TRUE(gate().deleteFile());
    EXPECT_EQ(below("card").filter("Gate"), QStringList());
    EXPECT_EQ(listed().size(), 1);
    EXPECT_EQ(below("card").filter("Nozzle").size(), 4);
}

TEST_F(Media, TakeNothingThatTheyHaveNoRoomFor) {
    HostDisk disk(shelf(), host.host.cameras());
    const qint64 room = disk.folder(path("card/new/run")).available;
    EXPECT_EQ(room, (1 << 20) - card()->use().used);
    MediaRoom full(shelf());
    EXPECT_EQ(full.fault(path("elsewhere/a")), "");
    EXPECT_EQ(full.fault(path("card/a")), "");
    write(path("card/a"), QByteArray(int(room * 2 / 3), 'x'));
    EXPECT_EQ(full.fault(path("card/sub/b")), qt_error_string(ENOSPC)) << "one more of that size has no room";
    shelf().pullOut(card());
    EXPECT_EQ(full.fault(path("card/c")), qt_error_string(ENODEV));

    putIn({zeb::CFast, "Fast", path("fast"), 0, {}, true});
    EXPECT_EQ(disk.folder(path("fast/run")).state, TargetDisk::Folder::ReadOnly);
    EXPECT_EQ(MediaRoom(shelf()).fault(path("fast/a")), qt_error_string(EROFS));
}

TEST_F(Media, AreRefusedWithWhy) {
    write(path("file"), "no folder");
    const auto label = [this](const QString& in, const QByteArray& bytes) {
        QDir().mkpath(path(in));
        write(path(in + "/.zebsim-medium"), bytes);
    };
    label("text", "[1");
    label("other", R"({"zebsim": "recording"})");
    label("hash", R"({"zebsim": "medium", "password": {"salt": "00", "hash": "00"}})");
    label("large", QByteArray(5 << 20, ' '));
    QDir().mkpath(path("link"));
    QFile::link(path("file"), path("link/.zebsim-medium"));
    const struct {
        const char* name;
        QString folder;
        const char* why;
    } cases[] = {{" ", path("a"), "a medium needs a name"},
                 {"CARD", path("a"), "a medium of that name is in already"},
                 {"In", path("card/sub"), "its folder belongs to another medium"},
                 {"Around", folder.path(), "its folder belongs to another medium"},
                 {"File", path("file"), "its folder can't be made"},
                 {"All", "/", "this folder can't be a medium"},
                 {"Home", QDir::homePath(), "this folder can't be a medium"},
                 {"Text", path("text"), "it is damaged"},
                 {"Other", path("other"), "it is damaged"},
                 {"Hash", path("hash"), "it is damaged"},
                 {"Large", path("large"), "it is too large"},
                 {"Link", path("link"), "it is a link"}};
    for (const auto& one : cases) {
        const std::string why = thrownBy([&] { putIn({RigMedium::SdCard, one.name, one.folder, 0, {}, false}); });
        EXPECT_TRUE(QString::fromStdString(why).endsWith(QString(": ") + one.why)) << one.name << ": " << why;
    }
    EXPECT_EQ(shelf().media().size(), 1u);
}

}  // namespace
