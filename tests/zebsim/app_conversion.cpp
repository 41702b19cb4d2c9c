#include "BackgroundConversion.h"
#include "Files.h"
#include "Tal2Start.h"
#include "support/SavingTest.h"

namespace {

class Conversion : public SavingTest {
protected:
    Conversion() {
        SaveOrders all = orders("png");
        all.hasInformation = true;
        EXPECT_EQ(run(all).filter("saved").size(), 2);
        for (const auto& [key, value] : QList<QPair<QString, QVariant>>{{"dir", path("out")},
                                                                        {"dirasoriginal", false},
                                                                        {"format", "bmp"},
                                                                        {"filenameasoriginal", true},
                                                                        {"filenameadddetail", false},
                                                                        {"saveinf", true}}) {
            host.host.prefs().setValue("convert/" + key, value);
        }
    }
    QStringList converted() const { return QDir(path("out")).entryList(QDir::Files, QDir::Name); }
};

TEST_F(Conversion, GoesOnInTheBackgroundAndReplacesNothing) {
    BackgroundConversion background(host.host);
    background.convert({path("Gate.cih"), path("Nozzle_2.cih"), path("gone.cih")});
    background.convert({path("Gate.cih")});
    EXPECT_TRUE(background.isRunning());
    EXPECT_TRUE(until([&] { return !background.isRunning(); }));
    EXPECT_EQ(
        host.desk.beside,
        QStringList(
            {"Not all of 3 recordings were converted:\n" + path("gone.cih") + ": No such file or directory",
             "Not all of 1 recordings were converted:\nGate: " + path("out/Gate_-00001.bmp") + " exists already"}));
    EXPECT_EQ(converted(), QStringList({"Gate.cih", "Gate_-00001.bmp", "Gate_00000.bmp", "Nozzle_2.cih",
                                        "Nozzle_2_00000.bmp", "Nozzle_2_00001.bmp", "Nozzle_2_00002.bmp"}));
    EXPECT_EQ(pixelsOf(QImage(path("out/Gate_00000.bmp")), 8), readByOthers(path("Gate_00000.png"), 8));
    EXPECT_TRUE(host.host.isLiveMode());
    EXPECT_FALSE(host.host.cameras().has(CameraBank::FirstFileKey)) << "they are closed";

    host.desk.beside.clear();
    host.host.prefs().setValue("convert/dir", "relative");
    background.convert({path("Gate.cih")});
    EXPECT_TRUE(until([&] { return !host.desk.beside.isEmpty(); }));
    EXPECT_TRUE(host.desk.beside[0].contains("There can't be a folder relative")) << host.desk.beside[0].toStdString();
}

TEST_F(Conversion, HandsTheFoldersOfASaveToTal2WhenThatIsWanted) {
    const QString program = path("tal2.exe");
    write(program, "#!/bin/sh\nprintf '%s|' \"$@\" >\"$0.new\" && mv \"$0.new\" \"$0.told\"\n");
    host.host.prefs().setValue("tal2/folder", folder.path());
    handOverToTal2(host.host, {"/never"});
    host.host.prefs().setValue("export/executetal2", true);
    handOverToTal2(host.host, {"/while recordings are downloaded by themselves"});
    host.host.prefs().setValue("recording/AutoDownload", false);
    handOverToTal2(host.host, {});
    handOverToTal2(host.host, {"/a b", "/c"});
    EXPECT_EQ(host.desk.beside, QStringList(program + " can't be started. What was saved is complete."));
    QFile::setPermissions(program, QFile::ReadOwner | QFile::ExeOwner);
    handOverToTal2(host.host, {"/a b", "/c"});
    EXPECT_TRUE(until([&] { return QFileInfo::exists(program + ".told"); }));
    EXPECT_EQ(contentOf(program + ".told"), "/a b|/c|");
}

}  // namespace
