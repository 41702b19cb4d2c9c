#include "Course.h"
#include "FactoryValues.h"
#include "Files.h"
#include "FullDisk.h"
#include "Preferences.h"
#include "SaveOrders.h"
#include "support/TestHost.h"

#include <QDir>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace {

class Prefs : public testing::Test {
protected:
    /// The file at a new place, so that nothing but its text is read.
    QString copied() {
        const QString copy = folder.filePath(QStringLiteral("copy.ini"));
        EXPECT_TRUE(QFile::copy(path, copy));
        return copy;
    }

    QTemporaryDir folder;
    QString path = folder.filePath(QStringLiteral("prefs.ini"));
    SteppedClock clock;
    ScriptedDesk desk;
};

}  // namespace

TEST_F(Prefs, KeepValueAndTypeOverARestart) {
    const QMap<QString, QVariant> values{
        {QStringLiteral("wren/table/x"), -1234},
        {QStringLiteral("wren/display/lock"), false},
        {QStringLiteral("wren/table/group"), QStringLiteral("A, \"B\"; =\n%1 [\u65e5\u672c] \\")},
        {QStringLiteral("my/int"), 5},
        {QStringLiteral("my/text that looks like a number"), QStringLiteral("005")},
        {QStringLiteral("my/bool"), true},
        {QStringLiteral("my/float"), 0.1f},
        {QStringLiteral("my/double"), 0.1},
        {QStringLiteral("my/uint"), 4294967295u},
        {QStringLiteral("my/one text"), QStringList{QStringLiteral("a,b")}},
        {QStringLiteral("my/@text"), QStringLiteral("@Invalid()")},
        {QStringLiteral("my/empty"), QString()},
    };
    {
        SimHost host(clock, desk, path);
        host.setPref(QStringLiteral("my/text that looks like a number"), 6);
        for (auto value = values.begin(); value != values.end(); ++value) {
            host.setPref(value.key(), value.value());
        }
        host.setPrefFloat(QStringLiteral("wren/settings/triggerManualBeforePer"), 33.33F);
        host.setPrefInt(QStringLiteral("sync/external"), 1);
    }
    EXPECT_THAT(contentOf(path).toStdString(), testing::HasSubstr("triggerManualBeforePer=33.33\n"));
    EXPECT_THAT(contentOf(path).toStdString(), testing::HasSubstr("external=1\n"));
    SimHost host(clock, desk, copied());
    for (auto value = values.begin(); value != values.end(); ++value) {
        const QVariant read = host.getPref(value.key());
        EXPECT_EQ(read, value.value()) << value.key().toStdString() << " " << read.toString().toStdString();
        EXPECT_STREQ(read.typeName(), value->typeName()) << value.key().toStdString();
    }
    EXPECT_TRUE(desk.shown.isEmpty());
}

TEST_F(Prefs, AnUnreadableValueInAGoodFileIsItsFactoryType) {
    write(path, "[wren]\ntable\\interval=soon\ndisplay\\lock=false\n");
    const Preferences prefs(path);
    EXPECT_STREQ(prefs.value(QStringLiteral("wren/table/interval")).typeName(), "int");
    EXPECT_EQ(prefs.value(QStringLiteral("wren/table/interval")), 500);
    EXPECT_EQ(prefs.value(QStringLiteral("wren/display/lock")), false);
}

TEST_F(Prefs, TakeOverWhatWasCalledOtherwise) {
    write(path, "[save]\nfolder=/old\nformat=video\n[snapshot]\nfolder=/shots\nformat=bmp\n[export]\ndir=/new\n");
    { const Preferences taken(path); }
    const Preferences prefs(copied());
    const QMap<QString, QVariant> values{
        {"export/dir", "/new"}, {"layout/dir", "/old"}, {"export/format", "video"}, {"layout/format", "video"},
        {"snap/dir", "/shots"}, {"snap/format", "bmp"}, {"save/folder", {}},        {"snapshot/format", {}},
    };
    for (auto value = values.begin(); value != values.end(); ++value) {
        EXPECT_EQ(prefs.value(value.key()), *value) << value.key().toStdString();
    }
    const auto pref = [&prefs](const QString& key) { return prefs.value(key); };
    EXPECT_EQ(chosenOrders(pref, "export/").format.id, "mp4") << "there was one kind of video";
}

TEST_F(Prefs, ACorruptFileIsKeptAsideAndNamed) {
    const QByteArray damages[] = {"[wren]\ntable\\interval=250\n\x01\x02garbage\n", QByteArray(4096, '\0'),
                                  "[wren\ntable\\interval=250\n"};
    int number = 0;
    for (const QByteArray& damage : damages) {
        desk.shown.clear();
        write(path, damage);
        const QString kept =
            path + (++number == 1 ? QStringLiteral(".corrupt") : QStringLiteral(".corrupt-%1").arg(number));
        {
            SimHost host(clock, desk, path);
            ASSERT_EQ(desk.shown.size(), 1) << number;
            EXPECT_EQ(desk.shown.first().kind, Message::Warn);
            EXPECT_TRUE(desk.shown.first().text.contains(path) && desk.shown.first().text.contains(kept));
            EXPECT_EQ(host.getPrefInt(QStringLiteral("wren/table/interval")), 500) << number;
            host.setPrefInt(QStringLiteral("wren/table/x"), number);
        }
        EXPECT_EQ(contentOf(kept), damage);
        EXPECT_EQ(Preferences(path).value(QStringLiteral("wren/table/x")), number) << "the new file works";
    }
}

TEST_F(Prefs, AFileThatCantBeOpenedIsToldOf) {
    ASSERT_TRUE(QDir().mkpath(path));
    SimHost host(clock, desk, path);
    ASSERT_EQ(desk.shown.size(), 1);
    EXPECT_TRUE(desk.shown.first().text.contains(path));
    EXPECT_EQ(host.getPrefInt(QStringLiteral("wren/table/interval")), 500);
}

TEST_F(Prefs, OnAFullDiskStayAsTheyWere) {
    Course log;
    {
        Preferences prefs(path);
        prefs.setValue(QStringLiteral("my/text"), QStringLiteral("before"));
    }
    {
        const FullDisk disk(10);
        Preferences prefs(path);
        prefs.setValue(QStringLiteral("my/text"), QStringLiteral("after"));
        QCoreApplication::sendPostedEvents();
        prefs.setValue(QStringLiteral("my/other"), QStringLiteral("after"));
    }
    EXPECT_EQ(QDir(folder.path()).entryList(QDir::Files), QStringList{QStringLiteral("prefs.ini")});
    EXPECT_EQ(Preferences(copied()).value(QStringLiteral("my/text")), QStringLiteral("before"));
    EXPECT_THAT(log.take().join(QLatin1Char('\n')).toStdString(), testing::HasSubstr("prefs.ini"));
}
