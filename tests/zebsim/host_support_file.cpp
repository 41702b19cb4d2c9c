#include "Files.h"
#include "SupportFile.h"
#include "support/TestHost.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QProcess>

#include <gtest/gtest.h>

namespace {

TEST(SupportFile, IsAZipThatAnotherProgramReads) {
    TestHost test(standardRig(2));
    test.camera(2).set(&CameraState::name, QStringLiteral("Düse \"日本\""));
    test.host.setPref(QStringLiteral("support/dir"), QStringLiteral("/there"));
    ZebSupportFile file;
    test.host.prepareSupportFile(file);
    file.files.insert(QStringLiteral("empty.txt"), {});
    const QString path = test.folder.filePath(QStringLiteral("s.zip"));
    write(path, "what stood there before goes as a whole");
    ASSERT_TRUE(test.host.exportSupportFile(path, file));

    QProcess unpack;
    unpack.setWorkingDirectory(test.folder.path());
    unpack.start(QStringLiteral(CMAKE_PROGRAM), {"-E", "tar", "xf", path});
    ASSERT_TRUE(unpack.waitForFinished());
    ASSERT_EQ(unpack.exitCode(), 0) << unpack.readAllStandardError().toStdString();
    for (auto entry = file.files.begin(); entry != file.files.end(); ++entry) {
        EXPECT_EQ(contentOf(test.folder.filePath(entry.key())), entry.value()) << entry.key().toStdString();
    }
    const QJsonArray cameras = QJsonDocument::fromJson(file.files.value("cameras.json")).array();
    ASSERT_EQ(cameras.size(), 2);
    EXPECT_EQ(cameras.at(1)["name"].toString(), QStringLiteral("Düse \"日本\""));
    EXPECT_TRUE(file.files.value("preferences.txt").contains("\nsupport/dir = /there\n"));
    EXPECT_TRUE(file.files.value("preferences.txt").contains("\nwren/table/interval = 500\n"));
    EXPECT_TRUE(file.files.value("calls.json").contains("ZebHost::setPref"));
}

TEST(SupportFile, HoldsTheLogOfEveryCameraThatKeepsOne) {
    TestHost test(readRig(QStringLiteral(SOURCE_FOLDER "/tests/webdialog/rigs/functions.json")));
    test.camera(4).change({{"alerts", QStringList{"It is\nhot"}}});
    ZebSupportFile file;
    test.host.prepareSupportFile(file);
    EXPECT_EQ(file.files.keys().filter("camera-"), QStringList({"camera-3.log", "camera-4.log"}));
    EXPECT_TRUE(file.files.value("camera-4.log").contains("192.168.0.12"));
    EXPECT_TRUE(file.files.value("camera-4.log").endsWith("\nAlert: \"It is\\nhot\"\n"));
}

}  // namespace
