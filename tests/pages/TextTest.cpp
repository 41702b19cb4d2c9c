#include "ChooseFile.h"
#include "TablePage.h"

#include <QClipboard>
#include <QFile>
#include <QGuiApplication>
#include <QTemporaryDir>

// The table as text.

namespace {

/// Names that would break a line or a cell, or be a formula; 4 is not connected.
void nameBadly(TestHost& test) {
    test.camera(1).change({{"name", "=HYPERLINK(\"x\")"}});
    test.camera(2).change({{"name", "Gate\t1,\r\n\"left\""}});
    test.camera(3).change({{"name", QString::fromUtf8("–5 屋根")}, {"alerts", QStringList({"warm", "-hot"})}});
    test.camera(4).change({{"name", "-5"}, {"connected", false}});
}

/// The lines of the file that the menu of the rows writes.
QStringList saved(TablePage& page) {
    QTemporaryDir folder;
    page.run("viewAt(wrentabledialog_obj.activeTab()).cursor.movedAt = 0; return 0");  // long ago
    page.key(Qt::Key_Menu);
    page.key(Qt::Key_S);
    chooseFile(folder.filePath("list"));
    page.key(Qt::Key_Return);
    QFile file(folder.filePath("list.csv"));
    EXPECT_TRUE(file.open(QIODevice::ReadOnly));
    const QByteArray bytes = file.readAll();
    EXPECT_TRUE(bytes.startsWith("\xEF\xBB\xBF") && bytes.endsWith("\r\n"));
    return QString::fromUtf8(bytes.mid(3)).split("\r\n", Qt::SkipEmptyParts);
}

TEST(PageText, IsCopiedAsTheRowsShowIt) {
    TestHost test(connected(4));
    nameBadly(test);
    TablePage page(test, 1);
    const auto copied = [&page] {
        page.key(Qt::Key_C, Qt::ControlModifier);
        return QGuiApplication::clipboard()->text().split('\n');
    };
    EXPECT_EQ(copied().value(1),
              "Unlocked\tConnected\tGate 1, \"left\"\t\tLIVE\tNo Sync\t1000 fps\t1/1000 sec\t"
              "1024 x 1024\tStart\tOFF\tOFF");
    EXPECT_EQ(copied().size(), 3) << "those that are selected";
    choose(test, {});
    page.update();
    EXPECT_EQ(copied().value(3), "\tNot connected\t-5\t\t\t\t\t\t\t\t\t") << "all, where none is";
}

TEST(PageText, IsSavedForSpreadsheets) {
    const QLocale before;
    QLocale::setDefault(QLocale(QLocale::German));
    TestHost test(connected(4));
    nameBadly(test);
    test.host.prefs().setValue("display/frameInsertDelimiter", true);
    test.host.prefs().setValue("wren/display/lock", false);
    TablePage page(test, 1);
    const QString live = R"csv("Connected","'=HYPERLINK(""x"")","","LIVE","No Sync","1000","1000",)csv"
                         R"csv("1024 x 1024","Start","OFF","OFF")csv";
    EXPECT_EQ(saved(page).value(1), live);
    test.camera(1).change({{"recorded", true},
                           {"recordedRange", QVariantList{0, 11999}},
                           {"recordedTrigger", 6000},
                           {"selectedRange", QVariantList{1, 11000}},
                           {"recordedRate", 2000}});
    page.enter(zeb::MemoryMode);
    EXPECT_EQ(page.text("viewAt(5).newestRecords[0].totalFrame"), "11.000");
    const QStringList memory{
        QString(R"csv("Checked","Connection","Camera name","Alert","Frame rate (fps)","First frame",)csv") +
            R"csv("Last frame","From","To","Frames","Trigger offset")csv",
        R"csv("Not checked","Connected","'=HYPERLINK(""x"")","","2000","-6000","5999","-5999","5000","11000","0")csv",
        "\"\",\"Connected\",\"Gate\t1,",
        R"csv(""left""","","","","","","","","")csv",
        QString::fromUtf8("\"\",\"Connected\",\"–5 屋根\",\"warm\n-hot\"") + R"csv(,"","","","","","","")csv",
        R"csv("","Not connected","-5","","","","","","","","")csv"};
    EXPECT_EQ(saved(page), memory);
    QLocale::setDefault(before);
}

}  // namespace
