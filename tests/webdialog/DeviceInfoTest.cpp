#include "Camera.h"
#include "ProbeBridge.h"
#include "RigFile.h"
#include "support/FaultyHost.h"

#include <QJsonObject>

#include <gtest/gtest.h>

namespace {

/// Three cameras, the second not connected.
class DeviceInfo : public testing::Test {
protected:
    void SetUp() override { host.camera(2).set(&CameraState::connected, false); }

    QString keys(bool isMinilist) {
        QStringList texts;
        for (const QVariant& device : bridge.getDeviceInfoList(isMinilist)) {
            texts += device.toMap()["key"].toString();
        }
        return texts.join(' ');
    }
    QJsonObject entry(int index) {
        return QJsonObject::fromVariantMap(bridge.getDeviceInfoList(false).value(index).toMap());
    }

    QString values(int index) {
        QStringList texts;
        for (const QVariant& value : entry(index).toVariantMap()) {
            texts += value.toString();
        }
        return texts.join('|');
    }

    Course course;
    FaultyHost host{3};
    ProbeBridge bridge{&host};
};

TEST_F(DeviceInfo, OnlyTheShortListInLiveModeLeavesOut) {
    EXPECT_FALSE(bridge.getConnectedCameraShowing());
    const struct {
        int mode;
        bool mini;
        bool onlyConnected;
        const char* keys;
    } cases[] = {
        {zeb::LiveMode, false, false, "1 2 3"},  {zeb::LiveMode, false, true, "1 2 3"},
        {zeb::LiveMode, true, false, "1 2 3"},   {zeb::LiveMode, true, true, "1 3"},
        {zeb::MemoryMode, true, true, "1 2 3"},  {zeb::FileMode, true, true, "1 2 3"},
        {zeb::MemoryMode, false, true, "1 2 3"},
    };
    for (const auto& row : cases) {
        host.enterMode(row.mode);
        bridge.setConnectedCameraShowing(row.onlyConnected);
        EXPECT_EQ(bridge.getConnectedCameraShowing(), row.onlyConnected);
        EXPECT_EQ(keys(row.mini), row.keys) << row.mini << row.mode << row.onlyConnected;
    }
}

TEST_F(DeviceInfo, TellsNamesAndMarks) {
    host.setRig(readRig(":/webdialog/rigs/functions.json"));
    host.camera(2).change({{"alias", "alias"}});
    for (const char* mark : {"connected", "mobile", "selected", "slowLink", "wifi"}) {
        host.camera(2).change({{mark, true}});
    }
    EXPECT_EQ(entry(1).keys().join(' '),
              "cameraname con-wifi devicename dummy found headno ipaddress key mobile selected shutdown sup-linkspeed "
              "sup-wifi");
    EXPECT_EQ(values(1), QString(host.camera(2).name() + "|connected|alias|dummy|found|2|192.168.0.10|2|mobile|"
                                                         "ui-selected|sup-shutdown|sup-linkspeed|sup-wifi"));
    EXPECT_EQ(values(2), "\"><img src=x>||log|||1|192.168.0.11|3|||||");
}

TEST_F(DeviceInfo, ACameraThatFailsEndsTheList) {
    host.camera(2).set(&CameraState::connected, true);
    host.faults().plant(2, "isFunctionSupported", {"no answer", 0, false});
    EXPECT_EQ(keys(false), "1 2");
    EXPECT_EQ(course.take(), QStringList({"pause", "errorHandler Camera 2: no answer", "resume"}));
    EXPECT_EQ(entry(0)["found"], "found");
    EXPECT_EQ(entry(1)["cameraname"], "Camera 2");
    EXPECT_EQ(entry(1)["found"], "");
    EXPECT_EQ(entry(1)["sup-linkspeed"], "");
}

TEST_F(DeviceInfo, SelectedKeysAreDecimalTexts) {
    host.docManager().setSelectedDocs({1, 3}, 0);
    EXPECT_EQ(bridge.getSelectedDockey(), QVariantList({"1", "3"}));
}

}  // namespace
