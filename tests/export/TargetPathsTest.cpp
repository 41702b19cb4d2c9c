#include "TargetPaths.h"

#include "Course.h"
#include "Files.h"
#include "GivenNames.h"
#include "NameFamilies.h"

namespace {

QVariantMap item(const QString& name, const QString& value, const QString& unit, const QString& usefilename) {
    return {{"name", name}, {"value", value}, {"unit", unit}, {"usefilename", usefilename}};
}

/// What a case of `paths.cases` says, as "filename=shot groupdir".
void give(GivenNames& names, GivenDocument& document, int type, const QString& words) {
    QMap<QString, QString> given;
    for (const QString& word : words.split(' ', Qt::SkipEmptyParts)) {
        const QString key = word.section('=', 0, 0);
        const QString value = word.section('=', 1);
        given[key] = value;
        names.prefs[key.contains('/') ? key : nameFamily(type) + key] = value.isEmpty() ? "1" : value;
    }
    const QString longest = QString("/").leftJustified(given["DIR"].toInt(), 'd');
    names.prefs[nameFamily(type) + "dir"] = longest == "/" ? "D:/data" : longest;
    names.inFileMode = given.contains("FILEMODE");
    names.mode = given["MODE"].toInt();
    names.fixed = given.contains("FIXED") ? std::optional(given["FIXED"]) : std::nullopt;
    names.substitute = given.contains("SUBSTITUTE") ? std::optional(given["SUBSTITUTE"]) : std::nullopt;
    names.promised = {given["PROMISED"]};
    names.taken = {given["TAKEN"]};
    names.allTaken = given.contains("ALL");
    names.disk["D:/data/"] = given["FILES"].split(',');
    for (const QString& folder : given["FOLDERS"].split(',')) {
        names.disk[folder];
    }
    names.other.items = {item("Kind", "other", "", "on")};
    document.details = given["DETAILS"];
    document.saysSession = given.contains("SESSION");
    document.named = {{1, given["PARTITION"]}};
    document.file = given["FILE"];
    document.device = given["DEVICE"].toInt();
    document.head = given.value("HEAD", "1").toInt();
    if (given.contains("CUSTOM")) {
        document.items = {item("TestNo", "T9", "", ""), item("Speed", "12", "m/s", "on"), item("Kind", "a", "", "on")};
    }
}

TEST(TargetPaths, AreComposedAsTheCasesSay) {
    for (const QString& line : QString::fromUtf8(contentOf(PATH_CASES)).split('\n')) {
        const QStringList columns = line.split(" | ");
        if (line.startsWith('#') || columns.size() < 4) {
            continue;
        }
        const int type = columns[1].toInt();
        GivenNames names;
        GivenDocument document;
        give(names, document, type, columns[2]);
        Course course;
        TargetPaths out;
        const QString failure = names.compose(type, document, out);
        const QString folder = out.folders.value(1);
        const QString name = out.paths.value(1).mid(folder.size());
        const QString path =
            folder.startsWith("/d") ? QString("%1+%2").arg(folder.size()).arg(name.size()) : folder + name;
        EXPECT_EQ(failure.isEmpty() ? path : failure, columns[3]) << columns[0].toStdString();
        EXPECT_EQ(course.take().filter("exists").size(), columns.value(4).toInt()) << columns[0].toStdString();
        for (const int times : names.listings) {
            EXPECT_EQ(times, 1) << "a folder is listed once";
        }
    }
}

TEST(TargetPaths, AreThoseOfEachPartition) {
    GivenNames names;
    GivenDocument document;
    give(names, document, 1,
         "filename=shot filenameaddtime filenameaddtimeformat=yyyyMMdd_HHmmss groupdir groupdirname=run "
         "groupdiraddnumber groupdiraddnumbercameranodigits=2");
    names.prefs["export/dir"] = "D:/data/";
    TargetPaths out;
    EXPECT_EQ(names.compose(1, document, out), "");
    const QString folder = "D:/data/run_C01/";
    const QString path = folder + "shot_20240102_030405";
    EXPECT_EQ(out.groups, (QMap<PARTITIONNUMBER, QString>{{1, "run_C01"}, {3, "run_C01"}}));
    EXPECT_EQ(out.folders, (QMap<PARTITIONNUMBER, QString>{{1, folder}, {3, folder}}));
    EXPECT_EQ(out.paths, (QMap<PARTITIONNUMBER, QString>{{1, path}, {3, path}}));
    EXPECT_EQ(names.last.mid(3), QStringList({"group run_C01", "folder " + folder, "path " + path}));
    names.prefs["export/filenameaspartitionname"] = true;
    document.named = {{1, "first"}, {3, ""}};
    TargetPaths first;
    EXPECT_EQ(names.compose(1, document, first), "Invalid filename.") << "the third partition has no name";
    EXPECT_EQ(first.paths.keys(), QList<PARTITIONNUMBER>{1});
    EXPECT_EQ(first.groups.size(), 2);
    EXPECT_EQ(names.compose(zeb::OtherLayoutFile, document, out), "Invalid filename.");
}

TEST(TargetPaths, SpellNumbers) {
    const struct {
        const char* what;
        int slot;
        std::optional<DeviceCounts> counts;
        const char* text;
    } cases[] = {
        {"with the digits of the slot", 0, DeviceCounts{8, 2}, "C01H1S0001"},
        {"with as many as there are devices and heads", 2, DeviceCounts{120, 12}, "C001H01S0001"},
        {"without a head where there is one", 2, DeviceCounts{9, 1}, "C1S0001"},
        {"automatic for no document as by hand", 2, {}, "C01H1S0001"},
        {"of a report the session alone", 10, {}, "S0001"},
        {"of a report's group directory none", 9, {}, ""},
        {"of data beside the images", 13, {}, "C01H1S0001"},
        {"where there is no name", 12, {}, ""},
        {"where there is no directory", groupDirSlot(zeb::OtherLayoutFile), {}, ""},
    };
    const auto pref = [](const QString& key) -> QVariant {
        EXPECT_FALSE(key.startsWith("addnumbercamera"));
        return key == "export/filenameaddnumberformat" ? QVariant("auto")
               : key.endsWith("cameranodigits")        ? 2
               : key.endsWith("headnodigits")          ? 1
                                                       : 4;
    };
    for (const auto& c : cases) {
        const NumberDigits digits = digitsFor(pref, c.slot, false, c.counts);
        EXPECT_EQ(numberText(1, 1, 1, digits.camera, digits.head, digits.session), c.text) << c.what;
    }
    EXPECT_EQ(numberText(12345, 1, 1, 2, 0, INT_MAX).size(), 6 + 256) << "no number is cut, no text is endless";
}

}  // namespace
