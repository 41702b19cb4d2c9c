#include "TargetPaths.h"

#include "Course.h"
#include "FileNameRules.h"
#include "GivenNames.h"
#include "NameFamilies.h"

#include <QDir>

#include <gtest/gtest.h>

#include <functional>
#include <random>

namespace {

/// "filename shot, save/SaveInfFile, groupdir": keys of the family, or whole ones, with values or true.
QVariantMap prefsFrom(const QString& text, int type) {
    QVariantMap prefs{{nameFamily(type) + "dir", "D:/data"}};
    for (const QString& each : text.split(", ", Qt::SkipEmptyParts)) {
        const QString key = each.section(' ', 0, 0);
        const QString value = each.section(' ', 1);
        prefs[key.contains('/') ? key : nameFamily(type) + key] = value.isEmpty() ? QVariant(true) : QVariant(value);
    }
    return prefs;
}

QVariantMap item(const QString& name, const QString& value, const QString& unit, const QString& usefilename) {
    return {{"name", name}, {"value", value}, {"unit", unit}, {"usefilename", usefilename}};
}

TEST(TargetPaths, SpellNumbers) {
    const struct {
        const char* what;
        int slot;
        bool isFileMode;
        std::optional<DeviceCounts> counts;
        const char* text;
    } cases[] = {
        {"with the digits of the slot", 0, false, DeviceCounts{8, 2}, "C01H1S0001"},
        {"with as many as there are devices and heads", 2, false, DeviceCounts{120, 12}, "C001H01S01"},
        {"without a head where there is one", 2, false, DeviceCounts{9, 1}, "C1S01"},
        {"automatic for no document as by hand", 2, false, {}, "C0001S01"},
        {"of a file the session alone", 0, true, DeviceCounts{8, 2}, "S0001"},
        {"of a report the session alone", 10, false, {}, "S001"},
        {"of a report's group directory none", 9, false, {}, ""},
        {"of data beside the images", 13, false, {}, "S00001"},
        {"where there is no name", 12, false, {}, ""},
        {"where there is no directory", groupDirSlot(5), false, {}, ""},
    };
    const QVariantMap prefs = prefsFrom(
        "groupdiraddnumbercameranodigits 2, groupdiraddnumberheadnodigits 1, groupdiraddnumbersessionnodigits 4, "
        "filenameaddnumberformat auto, filenameaddnumbercameranodigits 4, filenameaddnumbersessionnodigits 2, "
        "fd/datanameaddnumbersessionnodigits 5, report/groupdiraddnumbersessionnodigits 3, "
        "report/subdiraddnumbercameranodigits 3, report/subdiraddnumbersessionnodigits 3, "
        "export/fd/datanameaddnumbersessionnodigits 5, layout/groupdiraddnumbersessionnodigits 3",
        1);
    for (const auto& c : cases) {
        const auto pref = [&](const QString& key) { return prefs.value(key); };
        const NumberDigits digits = digitsFor(pref, c.slot, c.isFileMode, c.counts);
        EXPECT_EQ(numberText(1, 1, 1, digits.camera, digits.head, digits.session), c.text) << c.what;
    }
    EXPECT_EQ(numberText(12345, 1, 1, 2, 0, INT_MAX).size(), 6 + 256) << "no number is cut, no text is endless";
}

TEST(TargetPaths, AreTheFolderAndTheNameOfEachPartition) {
    GivenNames names;
    names.prefs = prefsFrom(
        "dir D:/data/, filename shot, filenameaddtime, filenameaddtimeformat yyyyMMdd_HHmmss, groupdir, "
        "groupdirname run, groupdiraddnumber, groupdiraddnumbercameranodigits 2",
        1);
    GivenDocument document;
    document.held = {1, 3};
    TargetPaths out;
    EXPECT_EQ(names.compose(1, &document, out), "");
    const QString folder = "D:/data/run_C01/";
    const QString path = folder + "shot_20240102_030405";
    EXPECT_EQ(out.groups, (QMap<PARTITIONNUMBER, QString>{{1, "run_C01"}, {3, "run_C01"}}));
    EXPECT_EQ(out.folders, (QMap<PARTITIONNUMBER, QString>{{1, folder}, {3, folder}}));
    EXPECT_EQ(out.paths, (QMap<PARTITIONNUMBER, QString>{{1, path}, {3, path}}));
    const QStringList told{"group run_C01", "folder " + folder, "path " + path};
    EXPECT_EQ(names.last, told + told);

    names.prefs["export/filenameaspartitionname"] = true;
    document.named = {{1, "first"}};
    TargetPaths first;
    EXPECT_EQ(names.compose(1, &document, first), "Invalid filename.") << "the third partition has no name";
    EXPECT_EQ(first.paths.keys(), QList<PARTITIONNUMBER>{1});
}

struct PathCase {
    const char* what;
    int type;
    const char* prefs;
    /// A path, or what is thrown.
    const char* path;
    std::function<void(GivenNames&, GivenDocument&)> given;
    int warnings = 0;
};

void expectPaths(const std::vector<PathCase>& cases) {
    for (const PathCase& c : cases) {
        GivenNames names;
        GivenDocument document;
        names.prefs = prefsFrom(c.prefs, c.type);
        if (c.given) {
            c.given(names, document);
        }
        Course course;
        TargetPaths out;
        const QString failure = names.compose(c.type, &document, out);
        EXPECT_EQ(failure.isEmpty() ? out.paths.value(1) : failure, c.path) << c.what;
        EXPECT_EQ(course.take().filter("exists").size(), c.warnings) << c.what;
        for (const int count : names.listings) {
            EXPECT_EQ(count, 1) << c.what;
        }
    }
}

TEST(TargetPaths, NameFiles) {
    const auto details = [](const QString& text) { return [=](GivenNames&, GivenDocument& d) { d.details = text; }; };
    const auto custom = [](GivenNames& names, GivenDocument& d) {
        d.items = {item("TestNo", "T9", "", ""), item("Speed", "12", "m/s", "on"), item("Kind", "a", "", "on")};
        names.other.items = {item("Kind", "other", "", "on")};
    };
    expectPaths({
        {"a name", 1, "filename shot", "D:/data/shot", {}},
        {"details and a time follow it", 1, "filename shot, filenameaddtime, filenameaddtimeformat MMM",
         "D:/data/shot_C01_Jan", details("C01")},
        {"they are the name where there is none", 1,
         "save/EnableBlankFilename, filenameaddtime, filenameaddtimeformat HH", "D:/data/C01_03", details("C01")},
        {"details lose what a name must not hold", 1, "filename shot", "D:/data/shot_a_b____c_",
         details("a/b\n:\t\"c%")},
        {"and are no folder", 1, "filename shot", "D:/data/shot___", details("..")},
        {"the name of the document", 7, "filename shot, filenameasoriginal", "D:/data/first", {}},
        {"images of a memory convert from what they would be saved as", 6,
         "filename shot, filenameasoriginal, export/filename taken", "D:/data/taken_T1_T6", details("T%1")},
        {"the same in files from what they are", 6, "filename shot, filenameasoriginal, export/filename taken",
         "D:/data/first", [](GivenNames& names, GivenDocument&) { names.inFileMode = true; }},
        {"the name of the partition", 1, "filename shot, filenameaspartitionname", "D:/data/a_b",
         [](GivenNames&, GivenDocument& d) {
             d.named = {{1, "a|b"}};
         }},
        {"which files have not", 1, "filename shot, filenameaspartitionname", "D:/data/shot",
         [](GivenNames& names, GivenDocument&) { names.inFileMode = true; }},
        {"custom information", 1, "filenameusecustom", "D:/data/12_a", custom},
        {"with its unit", 1, "filenameusecustom, filenameusecustomincludeunit", "D:/data/12_m_s_a", custom},
        {"of another camera", 1, "filenameusecustom, filenameusecustomfromtarget, filenameusecustomfromtargetkey 5",
         "D:/data/other", custom},
        {"of one that is gone", 1, "filenameusecustom, filenameusecustomfromtarget, filenameusecustomfromtargetkey 6",
         "D:/data/12_a", custom},
        {"none of it", 1, "filename shot, filenameusecustom", "Invalid filename.", {}},
        {"no name where that is allowed", 1, "save/EnableBlankFilename", "D:/data/", {}},
        {"no name of a report's pages", 17, "", "D:/data/", {}},
        {"a file of information has a name of its own", 1,
         "filename shot, export/media file, save/SaveInfFile, saveinf, export/inf_testno T7", "D:/data/T7",
         details("C01")},
        {"or that of its test", 6, "filename shot, export/media file, save/SaveInfFile, saveinf", "D:/data/T9", custom},
        {"but not beside snapshots", 7, "filename shot, export/media file, save/SaveInfFile, saveinf", "D:/data/shot",
         custom},
        {"square brackets", 16, "filename [a], groupdir, groupdirname [g]", "D:/data/[g]/[a]", {}},
    });
}

TEST(TargetPaths, NameDirectories) {
    const auto folders = [](const QStringList& paths) {
        return [=](GivenNames& names, GivenDocument&) {
            for (const QString& path : paths) {
                names.disk[path] = QStringList();
            }
        };
    };
    const auto detail = [](GivenNames&, GivenDocument& d) { d.details = "d"; };
    expectPaths({
        {"as the file, without its details", 1, "filename shot, groupdir, groupdirasfilename, subdir, subdirasfilename",
         "D:/data/shot/shot/shot_d", detail},
        {"as the file with them", 1,
         "filename shot, groupdir, groupdirasfilename, groupdirasfilenameincludeoption, subdir, subdirasfilename, "
         "subdirasfilenameincludeoption",
         "D:/data/shot_d/shot_d/shot_d", detail},
        {"one for all, without number and time", 1,
         "filename shot, groupdir, groupdiraddnumber, groupdiraddnumbersessionnodigits 2, groupdiraddtime, "
         "groupdiraddtimeformat yyyy",
         "D:/data/all/shot", [](GivenNames& names, GivenDocument&) { names.fixed = "all"; }},
        {"a layout has no group directory",
         18,
         "filename shot, groupdir, groupdirname run, subdir, subdirname s",
         "D:/data/s/shot",
         {}},
        {"number and time alone", 1,
         "filename shot, groupdir, groupdiraddnumber, groupdiraddnumbercameranodigits 1, "
         "groupdiraddnumberheadnodigits 1, groupdiraddtime, groupdiraddtimeformat yyyy",
         "D:/data/C4H2_2024/shot",
         [](GivenNames&, GivenDocument& d) {
             d.device = 3;
             d.head = 2;
         }},
        {"no number where it has no digits", 1, "filename shot, groupdir, groupdirname run, groupdiraddnumber",
         "D:/data/run/shot", folders({"D:/data/run/"})},
        {"the first session that is free", 1,
         "filename shot, groupdir, groupdirname run, groupdiraddnumber, groupdiraddnumbersessionnodigits 1",
         "D:/data/run_S3/shot", folders({"D:/data/run_S1/", "D:/data/run_S2/", "D:/data/run_S4/"}), 2},
        {"not one that another save has promised", 1,
         "filename shot, groupdir, groupdirname run, groupdiraddnumber, groupdiraddnumbersessionnodigits 1",
         "D:/data/run_S2/shot", [](GivenNames& names, GivenDocument&) { names.folders = {"D:/data/run_S1/"}; }, 1},
        {"a sub directory looks beside the group directory", 1,
         "filename shot, groupdir, groupdirname run, subdir, subdirname s, subdiraddnumber, "
         "subdiraddnumbersessionnodigits 1",
         "D:/data/run/s_S2/shot", folders({"D:/data/s_S1/", "D:/data/run/s_S2/"}), 1},
        {"a camera with a folder of its own",
         2,
         "filename shot, export/multipathdevicelist 192.168.0.10|a|b?x|k?192.168.0.10|k, "
         "export/multipathlist x|E:/x?k|F:/y?k|G:/z",
         "F:/y/shot",
         {}},
        {"unless all have one",
         2,
         "filename shot, export/singlepath, export/multipathdevicelist 192.168.0.10|k, export/multipathlist k|F:/y",
         "D:/data/shot",
         {}},
        {"a snapshot asks for none",
         7,
         "filename shot, export/multipathdevicelist 192.168.0.10|k, export/multipathlist k|F:/y",
         "D:/data/shot",
         {}},
        {"the folder of the file", 6, "filename shot, dirasoriginal", "/media/a/shot",
         [](GivenNames&, GivenDocument& d) { d.file = "/media/a/b.png"; }},
        {"none without a file", 6, "filename shot, dirasoriginal, groupdir, groupdirname run", "run/shot", {}},
        {"which is not asked of a camera's images", 1, "filename shot, dirasoriginal", "D:/data/shot",
         [](GivenNames&, GivenDocument& d) { d.file = "/media/a/b.png"; }},
    });
    GivenNames names;
    names.prefs = prefsFrom("filename [a], groupdir, groupdirasfilename, subdir, subdirname [s]", 16);
    TargetPaths round;
    names.compose(16, nullptr, round, false, 1);
    EXPECT_EQ(round.paths.value(1), "D:/data/(a)/(s)/(a)");
    names.substitute = "E:/else";
    names.compose(16, nullptr, round, true);
    EXPECT_EQ(round.folders.value(1) + "|" + round.paths.value(1), "E:/else/|E:/else/[a]");
    EXPECT_TRUE(names.last.filter(QRegExp("folder|path")).isEmpty()) << "a report is remembered by its group alone";
}

TEST(TargetPaths, CountSessionsOfFiles) {
    const auto files = [](const QStringList& there, bool saysSession = true, const QString& details = "S%3") {
        return [=](GivenNames& names, GivenDocument& d) {
            names.disk["D:/data/"] = there;
            d.details = details;
            d.saysSession = saysSession;
        };
    };
    const char* const prefs = "filename shot[1], filenameaddnumbersessionnodigits 1";
    const char* const invalid = "Invalid filename.";
    expectPaths({
        {"the first that is free", 1, prefs, "D:/data/shot[1]_S3",
         files({"shot[1]_S4.png", "shot[1]_S2", "shot1_S3.png", "shot[1]_S1_00001.png", "Shot[1]_S3.png"})},
        {"not one that is promised", 1, prefs, "D:/data/shot[1]_S2",
         [](GivenNames& names, GivenDocument& d) {
             d.details = "S%3";
             d.saysSession = true;
             names.taken = {"D:/data/shot[1]_S1"};
         }},
        {"in the folder that it makes", 1,
         "filename shot, filenameaddnumbersessionnodigits 1, groupdir, groupdirasfilename, "
         "groupdirasfilenameincludeoption",
         "D:/data/shot_S2/shot_S2",
         [](GivenNames& names, GivenDocument& d) {
             d.details = "S%3";
             d.saysSession = true;
             names.disk["D:/data/shot_S1/"] = QStringList("shot_S1.mp4");
         }},
        {"a name without digits stands", 1, "filename shot", "D:/data/shot_S1", files({"shot_S1.png"})},
        {"a name that says no session stands", 1, prefs, "D:/data/shot[1]_S1", files({"shot[1]_S1.png"}, false)},
        {"a host that says one and has none", 1, prefs, invalid, files({"shot[1]_d.png"}, true, "d")},
        {"a host that takes all", 1, prefs, invalid,
         [](GivenNames& names, GivenDocument& d) {
             d.details = "S%3";
             d.saysSession = true;
             names.allTaken = true;
         }},
    });
}

TEST(TargetPaths, HaveALength) {
    const auto dir = [](int length) { return QString("/").leftJustified(length, 'd'); };
    const char* const tooLong = "The path of the target is too long.";
    const struct {
        const char* what;
        int type;
        QVariantMap prefs;
        const char* failure;
    } cases[] = {
        {"245 with its slash", 1, {{"export/dir", dir(244)}}, ""},
        {"246", 1, {{"export/dir", dir(245)}}, tooLong},
        {"246 of a report", 16, {{"report/dir", dir(245)}}, ""},
        {"a path is longer than its folder", 7, {{"snap/dir", dir(240)}, {"snap/savethumbnail", true}}, ""},
        {"a thumbnail's of 245", 1, {{"export/dir", dir(235)}, {"export/savethumbnail", true}}, ""},
        {"of 246", 6, {{"convert/dir", dir(236)}, {"convert/savethumbnail", true}}, tooLong},
        {"of a file of information",
         1,
         {{"export/dir", dir(240)},
          {"export/savethumbnail", true},
          {"export/media", "file"},
          {"export/saveinf", true},
          {"save/SaveInfFile", true},
          {"export/inf_testno", "T7"}},
         ""},
    };
    for (const auto& c : cases) {
        GivenNames names;
        names.prefs = c.prefs;
        names.prefs[nameFamily(c.type) + "filename"] = "shot";
        names.prefs[nameFamily(c.type) + "savethumbnailaddtextvalue"] = "_t.pn";
        TargetPaths out;
        EXPECT_EQ(names.compose(c.type, nullptr, out), c.failure) << c.what;
        EXPECT_EQ(out.paths.size(), 1) << "it is told what was too long";
    }
}

/// Types, preferences, documents and disks of a few texts. What a user has typed as a name is half the time one.
class AnyNames {
public:
    explicit AnyNames(unsigned seed) : m_random(seed) {}

    int below(int count) { return static_cast<int>(m_random() % static_cast<unsigned>(count)); }
    QString text() {
        static const QStringList texts{
            "",     "shot",    ".",   "..", "a/b", "../x",   "C:\\x", "%1",  "\n", "[1]*", "\u202E",         "gate?",
            "s_S1", "yyyy/MM", "HH'", "-1", "箱",  "<b>\"x", "5",     "a|b", "%3", "S1",   QString(300, 'x')};
        return texts[below(texts.size())];
    }
    QString typed() { return isTyped ? QString("HH") : text(); }

    GivenDocument document(int camera) {
        GivenDocument document;
        document.device = camera;
        document.devices = below(2000);
        document.heads = below(12);
        document.file = text();
        document.original = typed();
        document.held = {1, 2, 7};
        document.named = {{1, text()}, {2, text()}, {7, text()}};
        document.items = {item("TestNo", typed(), text(), "on"), item("n", text(), text(), below(2) ? "on" : "")};
        document.details = QString("C%1_").arg(camera) + text() + (below(3) ? "%3" : "");
        document.saysSession = below(2);
        return document;
    }
    GivenNames names() {
        GivenNames names;
        for (const QString& family : {nameFamily(1), nameFamily(type)}) {
            for (const char* name : {"groupdir", "subdir", "filename"}) {
                for (const char* flag : {"", "asfilename", "asfilenameincludeoption", "addnumber", "addtime",
                                         "asoriginal", "aspartitionname", "usecustom", "usecustomfromtarget"}) {
                    names.prefs[family + name + flag] = below(3) == 0;
                }
                for (const char* key : {"name", "addtimeformat", "usecustomfromtargetkey"}) {
                    names.prefs[family + name + key] = typed();
                }
                for (const char* key : {"camera", "head", "session"}) {
                    names.prefs[family + name + "addnumber" + key + "nodigits"] = below(5) - 1;
                }
            }
            names.prefs[family + "filename"] = typed();
            names.prefs[family + "saveinf"] = below(3) == 0;
            names.prefs[family + "dir"] = "/root";
        }
        names.prefs["save/SaveInfFile"] = true;
        names.prefs["export/media"] = "file";
        names.inFileMode = below(4) == 0;
        names.other = document(3);
        for (const char* there : {"/root/", "/root/HH_S1/", "/root/shot_S1/", "/root/S1/", "/root/S01/"}) {
            if (below(2)) {
                names.disk[there] = QStringList({"shot_C1_1", "HH_C2_S1_1.png", "C1_s_S11", text()});
            }
        }
        return names;
    }

private:
    std::mt19937 m_random;

public:
    const int type = below(19);
    const bool isTyped = below(2);
};

TEST(TargetPaths, OfACameraAreItsOwnAndBelowTheRoot) {
    constexpr int Names = 10000;
    int composed = 0;
    for (unsigned seed = 0; composed < Names && !HasFailure(); ++seed) {
        SCOPED_TRACE(seed);
        Course course;
        AnyNames any(seed);
        GivenNames names = any.names();
        const GivenDocument first = any.document(1);
        const GivenDocument second = any.document(2);
        // What was composed, and why it ended.
        const auto pathsOf = [&](const GivenDocument& document, QStringList& paths) {
            TargetPaths out;
            const QString failure = names.compose(any.type, &document, out);
            paths = out.paths.values();
            composed += paths.size();
            return QStringList(out.groups.values()) + out.folders.values() + paths + QStringList(failure);
        };
        QStringList paths;
        const QStringList alone = pathsOf(second, paths);
        pathsOf(first, paths);
        names.taken = {paths.begin(), paths.end()};
        EXPECT_EQ(pathsOf(second, paths), alone);
        for (const QString& path : paths) {
            EXPECT_TRUE(path.startsWith("/root/"));
            for (const QString& part : path.mid(6).split('/')) {
                const bool isName = isGoodFileName(part) && !QStringList({"", ".", ".."}).contains(part);
                EXPECT_TRUE(isName || !any.isTyped) << path.toStdString();
            }
        }
    }
}

}  // namespace
