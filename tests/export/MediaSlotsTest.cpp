#include "JS_Mediator_FileDialog.h"

#include "ChooseFile.h"
#include "Course.h"
#include "Files.h"
#include "HostParts.h"

#include <QDir>
#include <QTemporaryDir>

#include <gtest/gtest.h>

void called(const char* /*operation*/, bool /*mayThrow*/) {}

namespace {

QString said(int number) {
    return QString::number(number);
}
QString said(const QString& text) {
    return text;
}
QString said(const QStringList& texts) {
    return texts.join(' ');
}
QString said(const DocKeyList& keys) {
    return said(keys.size());
}
QString said(const QVariantList& list) {
    return said(list.size());
}
QString said(const zeb::Medium& medium) {
    return QStringLiteral("%1/%2/%3 %4").arg(medium.type).arg(medium.drive).arg(medium.slot).arg(medium.name);
}
QString said(const QWidget*) {
    return {};
}
QString said(const ButtonTexts&) {
    return {};
}

/// An operation that stands in the course with what it is called with, and answers that.
template <typename Answer>
auto noting(const char* what, const Answer& answer) {
    return [what, &answer](const auto&... given) {
        QStringList words{what, said(given)...};
        words.removeAll("");
        Course::note(words.join(' '));
        return answer;
    };
}

/// A host with SD cards in C: and F: and with media of both kinds; what it is asked for stands in the course.
class MediaSlots : public testing::Test, public OtherZebHost {
protected:
    MediaSlots() {
        onTranslate = [](const QString& text) { return text; };
        onGetPrefString = [this](const QString& key, const QVariant&) { return prefs.value(key); };
        onSetPrefString = [this](const QString& key, const QString& value) { prefs[key] = value; };
        onConfirmModal = noting("confirm", agrees);
        onInfo = noting("info", agrees);
        onWarn = noting("warn", agrees);
        onAlert = noting("alert", agrees);
        OtherZebDocManager& docs = docManagerPart;
        docs.onGetSdDriveMask = [this] { return mask; };
        docs.onGetOpenSdDrive = [this](int& drive) {
            drive = openDrive < 0 ? drive : openDrive;
            return openDrive >= 0;
        };
        docs.onPrepareDrive = noting("prepare", agrees);
        docs.onOpenSdDrive = noting("open", agrees);
        docs.onCloseSdDrive = noting("close", agrees);
        OtherZebMedia& media = docs.mediaPart;
        media.onGetMedia = [this](int kind) { return there.value(kind); };
        media.onGetOpenMedium = [this](int, zeb::Medium& out) {
            out = open.value_or(out);
            return open.has_value();
        };
        media.onIsMediumLocked = [this](int, const zeb::Medium&) { return locked; };
        media.onUnlockMedium = noting("unlock", agrees);
        media.onOpenMedium = noting("open", agrees);
        media.onCloseMedium = noting("close", agrees);
        media.onFormatMedium = noting("format", agrees);
        media.onSetMediumPassword = noting("password", password);
        media.onGetMediumUse = [](int kind, const zeb::Medium&) {
            return zeb::MediumUse{1000, 375, qint64(kind) * 1024};
        };
        media.onOpenFiles = noting("files", agrees);
        media.onCheckSaved = noting("check", agrees);
        media.onImportDocs = noting("import", agrees);
    }

    /// What the host is asked for, without the lines of the log.
    QStringList asked(const std::function<void()>& act) {
        course.take();
        act();
        return course.take().filter(QRegularExpression("^(?!info: )"));
    }

    QMap<QString, QString> prefs;
    bool agrees = true;
    bool locked = false;
    unsigned int mask = 0x80000024;  // no letter goes with the highest bit
    int openDrive = -1;
    std::optional<zeb::Medium> open;
    std::optional<bool> password;
    QMap<int, QList<zeb::Medium>> there{{zeb::QuikDrive, {{1, 2, 0, "Q <1>"}, {1, 3, 0, "Q 2"}}},
                                        {zeb::CFast, {{4, 5, 6, "C 1"}}}};
    Course course;
    JS_Mediator_FileDialog bridge{this, "savedialog"};
};

TEST_F(MediaSlots, ListMedia) {
    EXPECT_EQ(bridge.getSDDrives(),
              R"({"record":[{"drivename":"C:","recid":0},{"drivename":"F:","recid":1}],"select":0})");
    openDrive = 5;
    EXPECT_TRUE(bridge.getSDDrives().endsWith(R"("select":1})"));
    openDrive = 7;
    EXPECT_TRUE(bridge.getSDDrives().endsWith(R"("select":0})")) << "it has been pulled out";
    mask = 0;
    EXPECT_EQ(bridge.getSDDrives(), R"({"record":[],"select":-1})");
    EXPECT_EQ(bridge.getCFDrives(),
              R"({"record":[{"drivename":"C 1","driveno":5,"drivetype":4,"recid":0,"slotno":6}],"select":0})");
    open = {1, 3, 0, "Q 2"};
    EXPECT_TRUE(bridge.getFDDrives().endsWith(R"("recid":1,"slotno":0}],"select":1})"));
    there.clear();
    EXPECT_EQ(bridge.getFDDrives(), R"({"record":[],"select":-1})");
}

TEST_F(MediaSlots, OpenOneAtATime) {
    const QString sd =
        "confirm Multiple SD cards can not be opened at the same time. Are you sure you want to close all "
        "data of F:?";
    const QString fd =
        "confirm Multiple QUIK Drives with USB connection can not be opened at the same time.Are you sure "
        "you want to close all data of Q 2?";
    const QString cf =
        "confirm Multiple CFast with USB connection can not be opened at the same time.Are you sure you "
        "want to close all data of Q 2?";
    const auto first = [this] { bridge.selectSDDrive(0); };
    const auto second = [this] { bridge.selectSDDrive(1); };
    const auto quik = [this] { bridge.selectFDDrive(1, 2, 0, "Q <1>"); };
    const auto cfast = [this] { bridge.selectCFDrive(4, 5, 6, "C 1"); };
    const struct {
        const char* sentence;
        int openDrive;
        std::optional<zeb::Medium> open;
        bool locked;
        bool agrees;
        std::function<void()> act;
        QStringList asked;
    } cases[] = {
        {"a card", -1, {}, false, true, first, {"prepare 5", "open 2"}},
        {"that is open", 5, {}, false, true, second, {"prepare 5", "open 5"}},
        {"for another one", 5, {}, false, true, first, {sd, "close", "prepare 5", "open 2"}},
        {"which stays", 5, {}, false, false, first, {sd}},
        {"of no list", 5, {}, false, true, [this] { bridge.selectSDDrive(2); }, {}},
        {"a drive", -1, {}, false, true, quik, {"open 1 1/2/0 Q <1>"}},
        {"that is open already", -1, {{1, 2, 0, "Q <1>"}}, false, true, quik, {"open 1 1/2/0 Q <1>"}},
        {"in place of another", -1, {{1, 3, 0, "Q 2"}}, false, true, quik, {fd, "close 1", "open 1 1/2/0 Q <1>"}},
        {"that stays", -1, {{1, 3, 0, "Q 2"}}, false, false, quik, {fd}},
        {"with a password", -1, {}, true, true, cfast, {"unlock 2 4/5/6 C 1", "open 2 4/5/6 C 1"}},
        {"that nobody knows", -1, {{1, 3, 0, "Q 2"}}, true, false, cfast, {"unlock 2 4/5/6 C 1"}},
        {"in place of another that is open",
         -1,
         {{1, 3, 0, "Q 2"}},
         true,
         true,
         quik,
         {"unlock 1 1/2/0 Q <1>", fd, "close 1", "open 1 1/2/0 Q <1>"}},
        {"the other kind", -1, {{1, 3, 0, "Q 2"}}, false, false, cfast, {cf}},
    };
    bridge.getSDDrives();
    for (const auto& row : cases) {
        openDrive = row.openDrive;
        open = row.open;
        locked = row.locked;
        agrees = row.agrees;
        EXPECT_EQ(asked(row.act), row.asked) << row.sentence;
    }
}

TEST_F(MediaSlots, AreFormattedAndLocked) {
    const auto formatted = [this] { return asked([this] { bridge.formatQuikDrive(1, 3, 0); }); };
    EXPECT_EQ(formatted(), QStringList({"format 1 1/3/0 Q 2", "info Formatting is completed."}));
    agrees = false;
    EXPECT_EQ(formatted(), QStringList({"format 1 1/3/0 Q 2", "alert Formatting failed."}));
    EXPECT_EQ(asked([this] { bridge.formatCFast(4, 5, 6); }).first(), "format 2 4/5/6 C 1");
    const auto locks = [this] { return asked([this] { bridge.setQuikDrivePassword(1, 2); }).mid(1); };
    EXPECT_EQ(locks(), QStringList());
    password = true;
    EXPECT_EQ(locks(), QStringList("warn Password setting completed.."));
    password = false;
    EXPECT_EQ(locks(), QStringList("alert Password setting failed."));
    EXPECT_EQ(bridge.getFDUseRatio(1, 2, 0) + ' ' + bridge.getTotalWrittenAmount(1, 2, 0), "37.5% 1.00KB");
}

TEST_F(MediaSlots, TakeFoldersThatTheUserChooses) {
    const QTemporaryDir folder;
    const auto opened = [&](const QString& chosen) {
        chooseFile(chosen);
        bool answer = false;
        QStringList lines = asked([&] { answer = bridge.openFolder(); });
        return lines.replaceInStrings(folder.path(), "F") << (answer ? "opened" : "not");
    };
    EXPECT_EQ(opened(folder.path()), QStringList({"info There is no recording in F.", "not"}));
    for (const char* name : {"b[1].cih", "a.CIHX", "c.cihy", "cih", "d.cih.txt"}) {
        write(folder.filePath(name), "");
    }
    QDir(folder.path()).mkdir("folder.cih");
    EXPECT_TRUE(QFile::link(folder.filePath("none"), folder.filePath("link.cih")));
    EXPECT_EQ(opened(folder.path()), QStringList({"files F/a.CIHX F/b[1].cih F/link.cih", "opened"}));
    EXPECT_EQ(prefs["import/dir"], folder.path());
    EXPECT_EQ(opened(""), QStringList("not"));

    const QVariantList records{QVariantMap{{"datano", 1}, {"serialno", "7"}}};
    chooseFile(folder.path());
    EXPECT_EQ(asked([&] { EXPECT_TRUE(bridge.savedCheck(records)); }), QStringList("check 1 " + folder.path()));
    chooseFile("");
    EXPECT_EQ(asked([&] { EXPECT_FALSE(bridge.savedCheck(records)); }), QStringList());
    EXPECT_EQ(asked([&] { bridge.importTarget({1, "2", "none"}); }), QStringList("import 2"));
}

}  // namespace
