#include "DOC_Image.h"
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

    bool askPassword(const QString&, const PasswordTest& fits) override {
        meanwhile();
        return fits(typed);
    }
    std::optional<QString> askNewPassword(const QString&, const PasswordTest& fits) override {
        meanwhile();
        return !fits || fits(typed) ? std::optional(wanted) : std::nullopt;
    }

    void runProgress(const QString& text, QFutureWatcherBase& watcher) override {
        meanwhile();
        HostWindows::runProgress(text, watcher);
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
    /// Happens while a box of a password stands, or a medium is erased.
    std::function<void()> meanwhile = [] {};
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
    EXPECT_EQ(thrownBy([&] {
                  media().formatMedium(RigMedium::SdCard, {0, drive, 0, {}});
              }),
              "SD card 3 is not there any more.");

    putIn({RigMedium::SdCard, "CARD", path("card"), 0, {}, false});
    open();
    QDir(path("card")).removeRecursively();
    EXPECT_EQ(shelf().media().size(), 0u);
    shelf().lookAround();
    EXPECT_EQ(listed(), DocKeyList()) << "a folder that is deleted is a medium that was pulled out";

    QDir().mkpath(path("outside"));
    write(path("outside/file"), "kept");
    const MediaShelf::Held fast = putIn({zeb::CFast, "Fast", path("fast"), 0, {}, false});
    QFile::rename(path("fast"), path("moved"));
    QFile::link(path("outside"), path("fast"));
    EXPECT_FALSE(fast->erase());
    EXPECT_EQ(thrownBy([&] { fast->setDataName(path("fast/file"), "x"); }), "Fast: it is not there any more");
    EXPECT_EQ(thrownBy([&] { media().formatMedium(zeb::CFast, fast->place()); }), "Fast is not there any more.");
    EXPECT_EQ(below("outside"), QStringList("file")) << "and so is one that another has taken the place of";
}

TEST_F(Media, AreNamedWhenTheyGoInTheMiddle) {
    const RigMedium settings{zeb::QuikDrive, "Quik", path("quik"), 0, "s3cret", false};
    typed = "s3cret";
    wanted = "n3w";
    const auto drive = [this] { return shelf().find(zeb::QuikDrive, QStringLiteral("Quik")); };
    zeb::Medium place;
    const auto unlock = [&] { media().unlockMedium(zeb::QuikDrive, place); };
    const struct {
        const char* sentence;
        std::function<void()> before;
        std::function<void()> act;
    } cases[] = {{"unlocked", [] {}, unlock},
                 {"given a password", [] {}, [&] { media().setMediumPassword(zeb::QuikDrive, place); }},
                 {"formatted", unlock, [&] { media().formatMedium(zeb::QuikDrive, place); }}};
    for (const auto& one : cases) {
        place = putIn(settings)->place();
        EXPECT_TRUE(drive()->isLocked()) << "nothing of it was half done before it is " << one.sentence;
        one.before();
        meanwhile = [&] { shelf().pullOut(drive()); };
        EXPECT_EQ(thrownBy(one.act), "Quik is not there any more.") << one.sentence;
        meanwhile = [] {};
    }
    EXPECT_EQ(putIn(settings)->name(), "Quik");
    unlock();
    EXPECT_FALSE(drive()->isLocked()) << "the old password is the one that it has";

    const DOCKEY key = open()->getKey();
    QFile::rename(path("card"), path("moved"));
    EXPECT_FALSE(host.doc(key)->image().getPreview(9, 64, 48, 1, 0, {}).isNull()) << "it says what is amiss";
    EXPECT_TRUE(until([this] { return listed().isEmpty(); })) << "nobody has to ask for it";
    EXPECT_EQ(host.desk.take(), QStringList("CARD was pulled out. Its recordings are closed."));
}

TEST_F(Media, StandBesideEachOther) {
    open();
    QDir().mkpath(path("second"));
    for (const QString& name : QDir(path("card/sub")).entryList({"Gate*"}, QDir::Files)) {
        QFile::copy(path("card/sub/" + name), path("second/" + name));
    }
    const MediaShelf::Held second = putIn({RigMedium::SdCard, "SECOND", path("second"), 0, {}, false});
    EXPECT_EQ(host.host.docManager().getSdDriveMask(), 0x18U);
    host.host.docManager().openSdDrive(second->place().drive);
    EXPECT_EQ(listed().size(), 1) << "one is open at a time";
    EXPECT_EQ(host.doc(listed()[0])->storage().getMediumData(1)->driveName, "E:");
    shelf().pullOut(card());
    EXPECT_EQ(listed().size(), 1) << "the other one going closes nothing";
    EXPECT_EQ(host.desk.take(), QStringList());
    EXPECT_EQ(putIn({RigMedium::SdCard, "CARD", path("card"), 0, {}, false})->driveName(), "D:");
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
    EXPECT_EQ(thrownBy([&] { media().formatMedium(zeb::QuikDrive, place); }), "Quik is locked by a password.");
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
    EXPECT_EQ(thrownBy([&] { media().formatMedium(RigMedium::SdCard, card()->place()); }),
              "CARD is formatted in its camera.");
    shelf().pullOut(card());
    const MediaShelf::Held fast = putIn({zeb::CFast, "CARD", path("card"), 1 << 20, {}, false});
    media().openMedium(zeb::CFast, fast->place());
    host.doc(listed()[0])->storage().convertDataName("Crash", 2, false);
    const qint64 used = fast->use().used;
    EXPECT_TRUE(media().formatMedium(zeb::CFast, fast->place()));
    EXPECT_EQ(below("card"), QStringList(".zebsim-medium"));
    EXPECT_EQ(below("outside"), QStringList("file"));
    EXPECT_EQ(listed(), DocKeyList());
    EXPECT_GT(used, 0);
    EXPECT_EQ(fast->use().written, used) << "what was written to it stays known";
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
    EXPECT_EQ(host.desk.shown.last().list, (QStringList{"Gate, Gate.cih: saved nowhere but on its medium",
                                                        "9: the recording is not there any more"}));
    const QByteArray told = contentOf(path("card/sub/Gate.cih"));
    write(path("card/sub/Gate.cih"), QByteArray(told).replace("1000", "500"));
    media().openFiles({path("card/sub/Gate.cih")});
    EXPECT_TRUE(host.desk.shown.last().list.join("").contains("Gate.cih has changed since it was opened."));
    EXPECT_NE(thrownBy([&] { gate().deleteFile(); }).find("Gate.cih has changed"), std::string::npos);
    EXPECT_EQ(below("card").filter("Gate").size(), 3) << "another recording is not deleted for it";
    write(path("card/sub/Gate.cih"), told);
    EXPECT_TRUE(gate().deleteFile());
    EXPECT_EQ(below("card").filter("Gate"), QStringList());
    EXPECT_EQ(listed().size(), 1);
    EXPECT_EQ(below("card").filter("Nozzle").size(), 4);
}

TEST_F(Media, KnowWhichOfTheirFramesAreSaved) {
    const auto shoot = [this] { host.camera(1).keep(1, host.camera(1).recording()); };
    QString format = "png";
    const auto save = [this, &format](DOCKEY key, const QString& name, int step, int first, int last) {
        if (key == 1) {
            prepare(1, "Gate", first, last);
        }
        SaveOrders all{saveFormat(format), tracksOfEach(saveSources(host.host.cameras(), {key}))};
        all.hasInformation = true;
        all.tracks[0].step = step;
        all.tracks[0].stem = path(name);
        EXPECT_EQ(run(all).filter("saved").size(), 1);
    };
    const auto copy = [&](int step, int first, int last) { save(1, "copies/Copy", step, first, last); };
    const auto replaceIn = [](const QString& file, const char* from, const char* to) {
        write(file, contentOf(file).replace(from, to));
    };
    const QString fifth = path("copies/Copy_-00095.png");
    const zeb::Medium place = putIn({zeb::CFast, "Fast", path("fast"), 0, {}, false})->place();
    const struct {
        const char* sentence;
        int step;
        std::function<void()> copy;
        const char* told;
    } cases[] = {
        {"all", 1, [&] { copy(1, 0, 12); }, "saved"},
        {"every other", 1, [&] { copy(2, 0, 12); }, "saved in part, without the frames -99, -97, ..., -89"},
        {"from the middle", 1, [&] { copy(1, 2, 11); }, "saved in part, without the frames -100 … -99, -88"},
        {"one gone", 1, [&] { copy(1, 0, 12), QFile::remove(fifth); }, "saved in part, without the frames -95"},
        {"one a link", 1, [&] { copy(1, 0, 12), QFile::rename(fifth, path("x")), QFile::link(path("x"), fifth); },
         "saved in part, without the frames -95"},
        {"all of what was thinned out", 2, [&] { copy(1, 0, 12); }, "saved"},
        {"the thinned out one imported", 2, [&] { save(listed()[0], "copies/Copy", 1, 0, 0); }, "saved"},
        {"and half of it", 2, [&] { save(listed()[0], "copies/Copy", 3, 0, 0); },
         "saved in part, without the frames -49 … -48, -46 … -45"},
        {"one overwritten", 1, [&] { copy(1, 0, 12), write(fifth, "x"); }, "saved in part, without the frames -95"},
        {"with loss", 1, [&] { format = "jpeg", copy(1, 0, 12); }, "saved whole only with loss of quality"},
        {"the next shoot", 1, [&] { shoot(), copy(1, 0, 12); }, "not saved"},
        {"none", 1, [] {}, "not saved"},
        {"one at another rate", 1, [&] { copy(1, 0, 12), replaceIn(path("copies/Copy.cih"), "1000", "500"); },
         "not saved"},
    };
    prepare(1, "Gate", 0, 12);
    shoot();
    for (const auto& one : cases) {
        format = "png";
        save(1, "fast/Gate", one.step, 0, 12);
        media().openMedium(zeb::CFast, place);
        one.copy();
        media().checkSaved({QVariantMap{{"datano", 1}, {"serialno", "192.168.0.11"}}}, path("copies"));
        EXPECT_EQ(host.desk.shown.last().list, QStringList("Gate, Gate.cih: " + QString::fromUtf8(one.told)))
            << one.sentence;
        media().closeMedium(zeb::CFast);
        media().formatMedium(zeb::CFast, place);
        QDir(path("copies")).removeRecursively();
    }
}

TEST_F(Media, TakeNothingThatTheyHaveNoRoomFor) {
    HostDisk disk(shelf(), host.host.cameras());
    const qint64 room = disk.folder(path("card/new/run")).available;
    EXPECT_EQ(room, (1 << 20) - card()->use().used);
    MediaRoom full(shelf());
    EXPECT_EQ(full.fault(path("elsewhere/a"), room * 2), "");
    EXPECT_EQ(full.fault(path("card/a"), room * 2 / 3), "");
    write(path("card/a"), QByteArray(int(room * 2 / 3), 'x'));
    EXPECT_EQ(full.fault(path("card/sub/b"), room * 2 / 3), qt_error_string(ENOSPC));
    shelf().pullOut(card());
    EXPECT_EQ(full.fault(path("card/c"), 0), qt_error_string(ENODEV));

    putIn({zeb::CFast, "Fast", path("fast"), 0, {}, true});
    EXPECT_EQ(disk.folder(path("fast/run")).state, TargetDisk::Folder::ReadOnly);
    EXPECT_EQ(MediaRoom(shelf()).fault(path("fast/a"), 0), qt_error_string(EROFS));
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
                 {"In", path("card/sub/in"), "its folder belongs to another medium"},
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
    EXPECT_FALSE(QDir(path("card/sub/in")).exists()) << "nothing is made for what is refused";
}

}  // namespace
