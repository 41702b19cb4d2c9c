#include "Files.h"
#include "FullDisk.h"
#include "SettingsReader.h"
#include "Unprivileged.h"
#include "support/TestHost.h"

#include <gtest/gtest.h>

#include <thread>

namespace {

class SettingsSave : public testing::Test {
protected:
    SettingsSave() { QFile::setPermissions(test.folder.path(), QFile::Permissions(0x7777)); }

    /// As the plug-in does it; what it throws.
    std::string save() {
        std::string thrown;
        std::thread([&] { thrown = thrownBy([this] { test.host.docManager().saveSettingsFile(path, 0); }); }).join();
        QCoreApplication::processEvents();
        return thrown;
    }
    void plant(DOCKEY key, const Fault& fault) { test.host.faults().plant(key, "saveSettings", fault); }

    TestHost test{connected(4)};
    QString path = test.folder.filePath("x.rigx");
};

TEST_F(SettingsSave, LeavesOutAndNamesWhoDoesNotAnswer) {
    plant(1, {"no answer"});
    plant(2, {{}, 0, true});
    test.camera(4).set(&CameraState::shutter, 0);
    EXPECT_EQ(save(), "");
    EXPECT_EQ(test.desk.take(),
              (QStringList{"Cameras that are not in \"x.rigx\":\nCamera 1: no answer\nCamera 2: the camera is gone\n"
                           "Camera 4: shutter: a number from 1 to 2147483647 is expected"}));
    const auto heads = readSettings(path);
    ASSERT_EQ(heads.size(), 1);
    EXPECT_EQ(heads[0].settings, test.camera(3).state().toPlain(CameraState::settings()));
}

TEST_F(SettingsSave, IsAsSlowAsTheSlowestCamera) {
    plant(2, {{}, 700});
    test.clock.join();
    EXPECT_EQ(save(), "");
    EXPECT_EQ(test.clock.join(), 702);
}

TEST_F(SettingsSave, ThatFailsNamesTheFileAndLeavesTheOldOne) {
    const std::function<void()> nothing = [] {};
    const struct {
        const char* reason;
        std::function<void()> before;
        rlim_t room;
    } rows[] = {
        {"only a part of it could be written; the disk may be full", nothing, 0},
        {"only a part of it could be written; the disk may be full", nothing, 2000},
        {"Permission denied", [this] { QFile::setPermissions(path, QFile::ReadOwner); }, RLIM_INFINITY},
        {"no camera's settings can be kept\nCamera 1: x\nCamera 3: x\nCamera 4: x",
         [this] {
             test.host.faults().plant(2, "*", {{}, 0, true});
             plant(1, {"x"});
             plant(3, {"x"});
             plant(4, {"x"});
         },
         RLIM_INFINITY},
        {"no camera is connected", [this] { test.host.setRig(standardRig(1)); }, RLIM_INFINITY},
        {"No such file or directory",
         [this] {
             test.host.setRig(connected(1));
             path = test.folder.filePath("no/x.rigx");
         },
         RLIM_INFINITY},
    };
    const QString old = path;
    write(old, "old");
    QFile::setPermissions(old, QFile::Permissions(0x6666));
    for (const auto& row : rows) {
        row.before();
        {
            const Unprivileged user;
            const FullDisk disk(row.room);
            EXPECT_EQ(save(), path.toStdString() + ": " + row.reason);
        }
        EXPECT_EQ(contentOf(old), "old") << row.reason;
    }
}

}  // namespace
