#include "FileNameDetails.h"
#include "GivenNames.h"
#include "NamePromises.h"
#include "SavePlan.h"
#include "TargetDisk.h"
#include "support/TestHost.h"

#include <QDir>
#include <QRegularExpression>

#include <gtest/gtest.h>

namespace {

/// A disk as a case describes it.
struct FakeDisk : TargetDisk {
    Folder folder(const QString& path) override {
        return {states.value(path, Folder::There), path.section('/', 1, 1).toUtf8(), available};
    }
    bool isPlainFile(const QString& path) override { return !path.contains("pipe"); }
    QString canonical(const QString& folder) override { return QString(folder).replace("/link/", "/r/"); }
    const QStringList& namesIn(const QString& folder) override { return names[folder]; }
    bool isOpen(const QString&) override { return false; }

    QHash<QString, Folder::State> states;
    QHash<QString, QStringList> names;
    qint64 available = 1LL << 40;
};

/// Two cameras, with the frames -1 to 1 each.
class Plan : public testing::Test {
protected:
    Plan() {
        for (DOCKEY key = 1; key <= 2; ++key) {
            host.camera(key).change({{"connected", true}, {"recorded", true}, {"recordedTrigger", 10}});
            host.camera(key).change({{"resolution", QVariantList{64, 64}}, {"selectedRange", QVariantList{9, 11}}});
        }
    }

    /// Each entry as "kind camera path count detail".
    QStringList told(const TrackTarget& one, const TrackTarget& two, SaveOrders orders = {saveFormat("png"), {}}) {
        orders.tracks = tracksOfEach(saveSources(host.host.cameras()));
        plan = planOf(orders, {one, two}, disk);
        QStringList lines;
        for (const PlanEntry& entry : plan.entries) {
            static const QStringList kinds = {"made",      "holds", "exists", "left out",  "no space", "twice",
                                              "forbidden", "path",  "none",   "read-only", "no file",  "no name"};
            const QString count = entry.count > 0 ? QString::number(entry.count) : QString();
            lines << QStringList({kinds.at(entry.kind), entry.camera, entry.path, count, entry.detail})
                         .join(' ')
                         .simplified();
        }
        return lines;
    }

    TestHost host{standardRig(2)};
    FakeDisk disk;
    SavePlan plan;
};

TEST_F(Plan, NamesWhatStandsAgainstEachCamera) {
    const QString wide(QChar(0x9AD8));
    const auto of = [](const QString& name) { return TrackTarget{"/r", {}, {}, name}; };
    const struct {
        const char* what;
        TrackTarget one;
        QStringList told;
    } cases[] = {
        {"nothing", of("a"), {}},
        {"an empty root", {{}, {}, {}, "a"}, {"none Camera 1"}},
        {"a root below nothing", {"r", {}, {}, "a"}, {"none Camera 1 r"}},
        {"the same file", of("b"), {"twice Camera 2 /r/b_-00001.png Camera 1"}},
        {"the same but for its letters' case", of("B"), {"twice Camera 2 /r/b_-00001.png Camera 1"}},
        {"the same by a link", {"/link", {}, {}, "b"}, {"twice Camera 2 /r/b_-00001.png Camera 1"}},
        {"no name", of({}), {"no name Camera 1 Invalid filename."}},
        {"a slash", of("a/c"), {"forbidden Camera 1 a/c File name"}},
        {"a control character", of("a\x07"), {"forbidden Camera 1 a\x07 File name"}},
        {"the folder above", {"/r", "..", {}, "a"}, {"forbidden Camera 1 .. Group folder"}},
        {"a drive", {"/r", {}, "c:", "a"}, {"forbidden Camera 1 c: Subfolder"}},
        {"255 bytes", of(wide.repeated(81) + "a"), {}},
        {"256 bytes", of(wide.repeated(81) + "ab"), {"path Camera 1 /r/" + wide.repeated(81) + "ab_-00001.png"}},
        {"a path of 4,095 bytes", {"/r" + QString("/" + QString(200, 'x')).repeated(20), {}, {}, QString(61, 'y')}, {}},
        {"a folder that is made", {"/new", {}, {}, "a"}, {"made /new/"}},
        {"a folder that takes nothing", {"/ro", {}, {}, "a"}, {"read-only Camera 1 /ro/"}},
        {"a file in the way", {"/file", {}, {}, "a"}, {"none Camera 1 /file/"}},
        {"other files", {"/full", {}, {}, "a"}, {"holds /full/ 4"}},
        {"a pipe in the way",
         {"/pipes", {}, {}, "pipe"},
         {"holds /pipes/ 1", "no file Camera 1 /pipes/pipe_00000.png"}},
        {"its own files", {"/full", {}, {}, "old"}, {"holds /full/ 4", "exists Camera 1 /full/old_00000.png 1"}},
    };
    disk.states = {{"/new/", TargetDisk::Folder::IsMade},
                   {"/ro/", TargetDisk::Folder::ReadOnly},
                   {"/file/", TargetDisk::Folder::Impossible}};
    disk.names["/full/"] = QStringList{"old_00000.jpg", "old_00000.png", "old_00002.png", "older_00000.png"};
    disk.names["/pipes/"] = QStringList{"pipe_00000.png"};
    for (const auto& one : cases) {
        EXPECT_EQ(told(one.one, of("b")).join('|').toStdString(), one.told.join('|').toStdString()) << one.what;
        const bool isFine =
            one.told.join(' ').contains(QRegularExpression("^(?!.*(twice|none|no |forbidden|path|read-only))"));
        EXPECT_EQ(plan.isPossible(), isFine) << one.what;
    }
    EXPECT_EQ(plan.orders.mayReplace, QSet<QString>({"/full/old_00000.png"})) << "and nothing else";
    EXPECT_EQ(plan.files, 6);
}

TEST_F(Plan, CountsAndChecksWhatStandsBesideTheFrames) {
    const TrackTarget one{"/r", {}, {}, "a"};
    const TrackTarget two{"/r", {}, {}, "b"};
    const QString wide(242, 'x');
    const struct {
        const char *what, *format;
        QString text;
        TrackTarget first;
        QStringList told;
        int files;
    } cases[] = {
        {"new ones", "png", "_thumb", one, {}, 10},
        {"pages", "tiff", "_thumb", one, {}, 6},
        {"as a frame of its own",
         "jpeg",
         "_00001",
         one,
         {"twice Camera 1 /r/a_00001.jpg Camera 1", "twice Camera 2 /r/b_00001.jpg Camera 2"},
         10},
        {"as no frame", "jpeg", "_00002", one, {}, 10},
        {"as a frame of another",
         "jpeg",
         "_1_00000",
         {"/link", {}, {}, "B_1"},
         {"twice Camera 2 /r/b_1_00000.jpg Camera 1"},
         10},
        {"elsewhere",
         "png",
         "/../x",
         one,
         {"forbidden Camera 1 /../x Thumbnail", "forbidden Camera 2 /../x Thumbnail"},
         10},
        {"longer than a frame's",
         "png",
         "_thumbnail",
         {"/r", {}, {}, wide + "y"},
         {"path Camera 1 /r/" + wide + "y_thumbnail.jpg"},
         10},
        {"there already",
         "png",
         "_thumb",
         {"/full", {}, {}, "a"},
         {"holds /full/ 3", "exists Camera 1 /full/a_00000.png 3"},
         10},
        {"a pipe",
         "png",
         "_pipe",
         {"/pipes", {}, {}, "a"},
         {"holds /pipes/ 1", "no file Camera 1 /pipes/a_pipe.jpg"},
         10},
    };
    disk.names["/full/"] = QStringList{"a.cih", "a_00000.png", "a_thumb.jpg"};
    disk.names["/pipes/"] = QStringList{"a_pipe.jpg"};
    for (const auto& row : cases) {
        SaveOrders orders{saveFormat(row.format), {}};
        orders.format.options.isMultiPage = true;
        orders.thumbnail = row.text;
        orders.hasInformation = true;
        EXPECT_EQ(told(row.first, two, orders).join('|').toStdString(), row.told.join('|').toStdString()) << row.what;
        EXPECT_EQ(plan.files, row.files) << row.what;
        EXPECT_EQ(plan.orders.mayReplace.size(), row.first.root == "/full" ? 3 : 0) << row.what;
    }
}

TEST_F(Plan, CountsTheRoomOfEachFileSystem) {
    const qint64 needed = [&] {
        told({"/r", {}, {}, "a"}, {"/r", {}, {}, "b"});
        return plan.allBytes;
    }();
    disk.available = needed;
    const QStringList lines = told({"/r", {}, {}, "a"}, {"/r", {}, {}, "b"});
    ASSERT_EQ(lines.size(), 1) << "others write to the disk as well";
    EXPECT_TRUE(lines.first().startsWith("no space /r/"));
    disk.available += 16 << 20;
    EXPECT_EQ(told({"/r", {}, {}, "a"}, {"/r", {}, {}, "b"}), QStringList());
    EXPECT_EQ(told({"/r", {}, {}, "a"}, {"/s", {}, {}, "b"}), QStringList()) << "each has room of its own";
}

TEST_F(Plan, CallsACameraAsItsPreferencesSay) {
    const struct {
        const char* what;
        QHash<QString, QVariant> prefs;
        const char* text;
        bool hasSession;
    } cases[] = {
        {"as at first", {}, "Gate_C03H2S007", true},
        {"without numbers", {{"export/filenameaddnumber", false}}, "Gate", false},
        {"without anything", {{"export/filenameadddetail", false}}, "", false},
        {"in another order", {{"export/filenameadddetails", "number,name"}}, "C03H2S007_Gate", true},
        {"with a text",
         {{"export/filenameadddetails", "text,name"}, {"export/filenameaddtextvalue", "run"}},
         "run_Gate",
         false},
        {"joined otherwise", {{"export/filenameadddetailsconnect", "-"}}, "Gate-C03H2S007", true},
        {"without sessions", {{"export/filenameaddnumbersessionnodigits", 0}}, "Gate_C03H2", false},
    };
    for (const auto& one : cases) {
        const auto pref = [&](const QString& key) { return one.prefs.value(key, host.host.prefs().value(key)); };
        const auto details = fileNameDetails(pref, 1, false, {" .Gate\t. ", 3, 2, {9, 2}}, 7);
        EXPECT_EQ(details.text.toStdString(), one.text) << one.what;
        EXPECT_EQ(details.hasSession, one.hasSession) << one.what;
    }
    EXPECT_EQ(nameInFiles(QString(100, QChar(0x9AD8))).toUtf8().size(), 150);
}

TEST(NamePromises, HoldUntilTheirSaveHasEnded) {
    NamePromises promises;
    auto first = std::make_unique<NamePromises::Save>(promises);
    promises.promise("/r/run_S1/a");
    EXPECT_FALSE(promises.isFolderTaken("/r/run_S1")) << "its own";
    EXPECT_TRUE(promises.isPathTaken("/r/run_S1/A"));
    {
        const NamePromises::Save snapShot(promises);
        EXPECT_TRUE(promises.isFolderTaken("/r/run_S1/") && promises.isFolderTaken("/r"));
        EXPECT_FALSE(promises.isFolderTaken("/r/run_S")) << "which is another";
        promises.promise("/r/shot");
        EXPECT_TRUE(promises.isPathTaken("/r/shot"));
    }
    EXPECT_FALSE(promises.isPathTaken("/r/shot")) << "it is written";
    promises.promise("/r/nobody");
    EXPECT_FALSE(promises.isPathTaken("/r/nobody"));
    const NamePromises::Save second(promises);
    EXPECT_TRUE(promises.isFolderTaken("/r/run_S1") && promises.isPathTaken("/r/run_S1/a"));
    first.reset();
    EXPECT_FALSE(promises.isFolderTaken("/r/run_S1") || promises.isPathTaken("/r/run_S1/a"));
}

struct AnyPartition : GivenDocument {
    QList<PARTITIONNUMBER> partitions() const override { return {1}; }
    zeb::FileNameDetails fileNameDetails(int type, PARTITIONNUMBER, int session, const QDateTime&) const override {
        const auto pref = [this](const QString& key) { return names->pref(key); };
        return ::fileNameDetails(pref, type, false, {original, 1, head, {8, 2}}, session);
    }
    const NameSource* names = nullptr;
};

/// Preferences, two partitions of each of two heads, and a disk, as `seed` makes them up. With `isNumbered` device and
/// head are in the name.
struct AnySave : GivenNames {
    explicit AnySave(unsigned from) : seed(from) {
        prefs = {{nameFamily(type) + "dir", root}, {nameFamily(type) + "filenameadddetails", "name,text,number"}};
        for (const char* key :
             {"detail", "number", "numbercameranodigits", "numberheadnodigits", "numbersessionnodigits"}) {
            prefs[nameFamily(type) + "filenameadd" + key] = isNumbered ? "1" : text(key);
        }
        substitute = any("substitute", 8) ? std::nullopt : std::optional<QString>("/s");
        for (std::size_t i = 0; i < 4; ++i) {
            partitions[i].names = this;
            partitions[i].head = i < 2 ? 1 : 2;
            partitions[i].original = text("camera" + QString::number(i / 2));
            partitions[i].named = {{1, text("partition" + QString::number(i))}};
            partitions[i].items = {{{"value", text("item")}, {"usefilename", "on"}}};
        }
        disk = {{"/r/", {"1_C1H1S1_1.png", text("there")}}, {"/r/1/", {"C1H2S1_1.png"}}, {"/r/1_S2/", {}}};
    }
    QVariant pref(const QString& key) const override { return prefs.value(key, text(key)); }
    bool isPathTaken(const QString& path) const override { return promises.isPathTaken(path); }
    void setLastPath(const QString& path) override { promises.promise(path); }
    /// Of the partitions from `first` on. What has no name has no folder.
    std::vector<TrackTarget> targets(std::size_t first) {
        const NamePromises::Save save(promises);
        std::vector<TrackTarget> targets(partitions.size());
        for (std::size_t i = first; i < targets.size(); ++i) {
            thrownBy([&] { targets[i] = TrackTarget::of(*this, type, partitions[i], {{2024, 1, 2}, {3, 4, 5}}); });
        }
        return targets;
    }
    int any(const QString& what, unsigned n) const { return int((qHash(what, seed) * 0x9E3779B97F4A7C15U >> 40) % n); }
    QString text(const QString& what) const {
        static const QStringList hostile =
            QString("..,..,..,.,a/b,../x,/etc,C:\\x,%1,\n,\x7f,\u0085,\u200f,[1]*,?,yyyy/MM,HH',-1,300,300, ,a|b,箱")
                .split(',');
        static const QStringList plain = QString(",,,1,1,HH,auto").split(',');
        const QStringList& texts = any(what + "?", 16) < int(seed % 4) ? hostile : plain;
        return texts.at(any(what, unsigned(texts.size())));
    }

    const unsigned seed;
    const bool isNumbered = any("numbered", 2);
    const zeb::FileType type = any("type", 4) ? zeb::ImageFile : zeb::LayoutFile;
    const QString root = QString("/r,/r/1,/s,r").split(',').at(any("root", 4));
    std::array<AnyPartition, 4> partitions;
    NamePromises promises;
};

TEST_F(Plan, LetsNamesThroughThatAreOnesAndBelowTheRoot) {
    // ./test long makes ten times as many.
    const int names = qEnvironmentVariableIsSet("WREN_LONG") ? 100000 : 10000;
    const QRegularExpression good(R"re(^(?!\.{1,2}$)[^\\/:*?|"<>%\x00-\x1f\x7f-\x9f]+$)re");
    const std::vector<SaveTrack> tracks(4, tracksOfEach(saveSources(host.host.cameras())).front());
    const Course course;
    int possible = 0;
    for (unsigned seed = 0; int(seed) < names / 4 && !HasFailure(); ++seed) {
        SCOPED_TRACE(seed);
        AnySave save(seed);
        const std::vector<TrackTarget> targets = save.targets(0);
        const std::vector<TrackTarget> again = save.targets(0);
        const std::vector<TrackTarget> alone = save.targets(2);
        disk = {};
        for (std::size_t i = 0; i < targets.size(); ++i) {
            EXPECT_EQ(again[i].stem(), targets[i].stem());
            EXPECT_TRUE(!save.isNumbered || i < 2 || alone[i].stem() == targets[i].stem());
            const QString number = QString::number(save.any("old", 4));
            disk.names[targets[i].folder()] = QStringList(targets[i].name + "_0000" + number + ".png");
        }
        plan = planOf({saveFormat("png"), tracks}, targets, disk);
        QSet<QString> written;
        for (std::size_t i = 0; plan.isPossible() && i < 12; ++i) {
            const QString path = plan.orders.fileOf(plan.orders.tracks[i / 3], int(i % 3));
            const QString root = QDir::cleanPath('/' + save.substitute.value_or(save.root)) + '/';
            bool isGood = path.startsWith(root) && path.toUtf8().size() <= 4095 && !written.contains(fileKey(path));
            for (const QString& part : path.mid(root.size()).split('/')) {
                isGood = isGood && part.contains(good) && part.toUtf8().size() <= 255;
            }
            const bool isOld = disk.names[targets[i / 3].folder()].contains(path.section('/', -1));
            EXPECT_TRUE(isGood && isOld == plan.orders.mayReplace.contains(path)) << path.toStdString();
            written.insert(fileKey(path));
        }
        possible += int(plan.isPossible());
    }
    std::cerr << possible << "\n";
    EXPECT_GT(possible, names / 40) << "not all are refused";
}

}  // namespace
