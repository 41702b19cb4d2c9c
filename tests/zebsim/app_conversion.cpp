#include "BackgroundConversion.h"
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

}  // namespace
