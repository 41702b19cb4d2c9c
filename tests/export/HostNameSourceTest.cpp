#include "HostNameSource.h"

#include "Files.h"
#include "support/TestHost.h"

#include <QDir>

namespace {

TEST(HostNameSource, SeesEveryFileOfAFolder) {
    TestHost given;
    const QString folder = given.folder.filePath("shots/");
    QDir().mkpath(folder + "directory");
    for (const char* name : {"shot[1]_S1.png", ".hidden_S1", "Upper", "箱_S1"}) {
        write(folder + name, "");
    }
    QFile::link("/nowhere/at/all", folder + "link_S1");
    const HostNameSource source(given.host);
    for (const char* there : {"shot[1]", ".hidden", "link", "箱", "Upper", ""}) {
        EXPECT_TRUE(source.hasFile(folder, there)) << there;
    }
    for (const char* absent : {"shot[1]_S10", "shot1", "shot*", "upper", "directory", "nk"}) {
        EXPECT_FALSE(source.hasFile(folder, absent)) << absent;
    }
    EXPECT_FALSE(source.hasFile(folder + "none/", ""));
    EXPECT_TRUE(source.folderExists(folder + "directory") && !source.folderExists(folder + "Upper"));
    write(folder + "later", "");
    EXPECT_FALSE(source.hasFile(folder, "later")) << "a folder is listed once";
}

}  // namespace
