#include "Companions.h"
#include "SaveTargets.h"
#include "support/SavingTest.h"

#include <QCryptographicHash>
#include <QDirIterator>

#include <random>

namespace {

/// Eight cameras of three rates with ranges of their own.
class AnySaves : public testing::Test {
protected:
    AnySaves() {
        for (DOCKEY key = 1; key <= Cameras; ++key) {
            const int rate = 1000 * (1 + int(key) % 3);
            host.camera(key).change({{"recorded", true}, {"recordedRate", rate}, {"recordedTrigger", 40}});
            host.camera(key).change({{"resolution", QVariantList{24, 18}}, {"recordedRange", QVariantList{0, 99}}});
            host.camera(key).change({{"name", key % 2 ? "Gate" : QString("R/%1").arg(key)}, {"partitions", 2}});
            if (key % 2 == 0) {
                host.camera(key).keep(2, host.camera(key).recording());
            }
            host.camera(key).change(
                {{"customInfo",
                  QVariantList{QVariantMap{
                      {"name", "Run"}, {"value", QString::number(key)}, {"unit", "u"}, {"usefilename", true}}}}});
        }
        host.host.appStatus().enterMode(zeb::MemoryMode);
    }

    bool any() { return std::uniform_int_distribution(0, 1)(random) == 1; }
    int anyBelow(int count) { return std::uniform_int_distribution(0, count - 1)(random); }
    void set(const QString& suffix, const QVariant& value) { host.host.prefs().assume(family + suffix, value); }

    /// Each option of names one way or the other; formats, ranges and frames that are left out.
    void choose() {
        isLayout = anyBelow(4) == 0;
        family = isLayout ? "layout/" : "export/";
        set("dir", folder.filePath(QString("root%1").arg(anyBelow(2))));
        for (const char* flag : {"groupdir",
                                 "groupdirasfilename",
                                 "groupdirasfilenameincludeoption",
                                 "groupdiraddnumber",
                                 "groupdiraddtime",
                                 "subdir",
                                 "subdirasfilename",
                                 "subdirasfilenameincludeoption",
                                 "subdiraddnumber",
                                 "subdiraddtime",
                                 "filenameadddetail",
                                 "filenameaddnumber",
                                 "filenameaddtime",
                                 "filenameasoriginal",
                                 "filenameaspartitionname",
                                 "filenameusecustom",
                                 "filenameusecustomincludeunit",
                                 "filenameusecustomfromtarget",
                                 "singlepath",
                                 "saveinf",
                                 "savethumbnail",
                                 "skipsave",
                                 "saveinfo",
                                 "tiff/multipage",
                                 "tiff/packbits",
                                 "info"}) {
            set(flag, any());
        }
        for (const char* name : {"groupdir", "subdir", "filename"}) {
            for (const char* number : {"camerano", "headno", "sessionno"}) {
                set(QString("%1addnumber%2digits").arg(name, number), anyBelow(5));
            }
        }
        set("multipathdevicelist", QString("%1|right?%2|left").arg(host.camera(1).address(), host.camera(2).address()));
        set("multipathlist", QString("right|%1?left|%2").arg(folder.filePath("root0"), folder.filePath("root2")));
        host.host.prefs().assume("save/substitutefolder", anyBelow(8) == 0 ? folder.filePath("substitute") : "");
        set("filename", any() ? "shot" : "");
        set("groupdirname", "group");
        set("subdirname", any() ? "sub" : "");
        set("filenameadddetails", QStringList({"name,number", "number", "text,name,number"}).at(anyBelow(3)));
        set("filenameaddtextvalue", "t");
        set("filenameseqdigits", 1 + anyBelow(6));
        set("format", QStringList({"png", "tiff", "bmp", "jpeg"}).at(anyBelow(4)));
        set("png/depth", any() ? 8 : 16);
        set("combinedresolutionspecify", true);
        set("combinedresolutionspecifywidth", 96);
        set("combinedresolutionspecifyheight", 72);
        set("skipunit", anyBelow(2));
        set("skipsaveframe", 1 + anyBelow(7));
        set("skipsavemsec", 1 + anyBelow(4));
        for (DOCKEY key = 1; key <= Cameras; ++key) {
            const int first = anyBelow(60);
            host.camera(key).change({{"selectedRange", QVariantList{first, first + anyBelow(30)}}});
        }
    }

    std::vector<SaveTrack> tracks() {
        const SaveSources sources = saveSources(host.host.cameras());
        return isLayout ? tracksOfLayout(sources, "Layout") : tracksOfEach(sources);
    }

    /// Frames of the range of a camera that the skip leaves.
    int expectedFrames(const Recording& recording) const {
        const auto pref = [this](const char* suffix) { return host.host.prefs().value(family + suffix).toInt(); };
        const int byTime = int(qint64(pref("skipsavemsec")) * recording.rate / 1000);
        const int step = pref("skipsave") == 0 ? 1 : pref("skipunit") == 1 ? byTime : pref("skipsaveframe");
        return (int(recording.selectedCount()) + step - 1) / step;
    }

    static QStringList plannedFiles(const SaveOrders& orders) {
        QStringList paths;
        for (const SaveTrack& track : orders.tracks) {
            for (int i = 0; i < filesIn(track, orders.format); ++i) {
                paths << orders.fileOf(track, i);
            }
            paths << companionsOf(orders, track);
        }
        return paths;
    }

    /// What the disk holds, each path with a sum of its bytes.
    QHash<QString, QByteArray> onDisk() const {
        QHash<QString, QByteArray> files;
        QDirIterator paths(folder.path(), QDir::Files | QDir::Hidden, QDirIterator::Subdirectories);
        while (paths.hasNext()) {
            QFile file(paths.next());
            file.open(QIODevice::ReadOnly);
            files.insert(file.fileName(), QCryptographicHash::hash(file.readAll(), QCryptographicHash::Md5));
        }
        return files;
    }

    static constexpr DOCKEY Cameras = 8;
    TestHost host{connected(Cameras)};
    QTemporaryDir folder;
    QString family;
    bool isLayout = false;
    std::mt19937 random{21};
};

TEST_F(AnySaves, WriteWhatThePlanSaysAndNothingElse) {
    // ./test long makes ten times as many.
    const int saves = qEnvironmentVariableIsSet("WREN_LONG") ? 200 : 20;
    int done = 0;
    int asked = 0;
    int refused = 0;
    QHash<QString, QByteArray> before;
    for (int round = 0; done < saves && round < 20 * saves && !HasFailure(); ++round) {
        SCOPED_TRACE(round);
        choose();
        NamePromises::Save names(host.host.saver().promises());
        SavePlan plan = composePlan(host.host, tracks(), {}, QDateTime({2026, 1, 1}, {1, 2}).addSecs(round / 4));
        const bool asks = std::any_of(plan.entries.begin(), plan.entries.end(),
                                      [](const PlanEntry& entry) { return entry.isQuestion(); });
        if (!plan.isPossible() || asks) {
            ++(asks ? asked : refused);
            continue;
        }
        SaveJob job(host.host.cameras(), plan.orders);
        job.start();
        ASSERT_TRUE(until([&job] { return !job.isRunning(); }));
        const QStringList planned = plannedFiles(plan.orders);
        EXPECT_EQ(plan.files, planned.size());
        QHash<QString, QByteArray> after = onDisk();
        for (auto old = before.begin(); old != before.end(); ++old) {
            EXPECT_EQ(after.value(old.key()), *old) << "overwritten: " << old.key().toStdString();
        }
        for (const QString& path : planned) {
            EXPECT_TRUE(after.contains(path) && !before.contains(path)) << path.toStdString();
        }
        EXPECT_EQ(after.size(), before.size() + planned.size());
        for (std::size_t i = 0; i < plan.orders.tracks.size() && !isLayout; ++i) {
            const SaveOutcome& outcome = job.outcomes().at(int(i));
            EXPECT_EQ(outcome.saved, expectedFrames(plan.orders.tracks[i].sources.front().recording()));
        }
        before = after;
        ++done;
    }
    std::cerr << done << " saves, " << before.size() << " files; asked " << asked << ", refused " << refused << "\n";
    EXPECT_EQ(done, saves);
}

}  // namespace
