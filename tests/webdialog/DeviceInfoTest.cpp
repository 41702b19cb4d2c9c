#include "FakeCamera.h"
#include "FakeHost.h"
#include "ProbeBridge.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <gtest/gtest.h>

namespace {

/// Two cameras, the second not connected, and the key of one that is gone.
class DeviceInfo : public testing::Test {
protected:
    void SetUp() override {
        far.connected = false;
        host.connectedKeys = {3, 8, 5};
        host.docs = {{3, &near}, {5, &far}};
    }
    QString keys(bool isMinilist) {
        QStringList texts;
        for (const QVariant& device : bridge.getDeviceInfoList(isMinilist)) texts += device.toMap()["key"].toString();
        return texts.join(' ');
    }
    QJsonObject entry(int index) {
        return QJsonObject::fromVariantMap(bridge.getDeviceInfoList(false).value(index).toMap());
    }

    Journal journal;
    FakeHost host;
    ProbeBridge bridge{&host};
    FakeCamera near{3};
    FakeCamera far{5};
};

TEST_F(DeviceInfo, OnlyTheShortListInLiveModeLeavesOut) {
    const struct {
        int mode;
        bool mini;
        bool onlyConnected;
        const char* keys;
    } cases[] = {
        {zeb::LiveMode, false, false, "3 5"},  {zeb::LiveMode, false, true, "3 5"},
        {zeb::LiveMode, true, false, "3 5"},   {zeb::LiveMode, true, true, "3"},
        {zeb::MemoryMode, true, true, "3 5"},  {zeb::FileMode, true, true, "3 5"},
        {zeb::MemoryMode, false, true, "3 5"},
    };
    for (const auto& row : cases) {
        host.mode = row.mode;
        bridge.setConnectedCameraShowing(row.onlyConnected);
        EXPECT_EQ(bridge.getConnectedCameraShowing(), row.onlyConnected);
        EXPECT_EQ(keys(row.mini), row.keys) << row.mini << row.mode << row.onlyConnected;
    }
    host.prefs.clear();
    EXPECT_FALSE(bridge.getConnectedCameraShowing());
}

TEST_F(DeviceInfo, TellsNamesAndMarks) {
    far.camera.name = "\"><img src=x>";
    far.camera.deviceName = "device";
    near.camera.alias = "alias";
    near.camera.deviceName = "device";
    near.camera.address = "192.168.0.10";
    near.camera.head = 2;
    near.camera.dummy = true;
    near.camera.wifi = near.camera.linkSpeed = 1;
    near.camera.functions = {zeb::FunctionShutdown, zeb::FunctionWifi};
    near.selected = near.mobile = true;
    EXPECT_EQ(entry(0), QJsonObject({{"key", "3"},
                                     {"cameraname", ""},
                                     {"devicename", "alias"},
                                     {"ipaddress", "192.168.0.10"},
                                     {"headno", 2},
                                     {"selected", "ui-selected"},
                                     {"found", "found"},
                                     {"mobile", "mobile"},
                                     {"dummy", "dummy"},
                                     {"shutdown", "sup-shutdown"},
                                     {"sup-wifi", "sup-wifi"},
                                     {"con-wifi", "connected"},
                                     {"sup-linkspeed", "sup-linkspeed"}}));
    EXPECT_EQ(entry(1), QJsonObject({{"key", "5"},
                                     {"cameraname", "\"><img src=x>"},
                                     {"devicename", "device"},
                                     {"ipaddress", ""},
                                     {"headno", 1},
                                     {"selected", ""},
                                     {"found", ""},
                                     {"mobile", ""},
                                     {"dummy", ""},
                                     {"shutdown", ""},
                                     {"sup-wifi", ""},
                                     {"con-wifi", ""},
                                     {"sup-linkspeed", ""}}));
}

TEST_F(DeviceInfo, ACameraThatFailsEndsTheList) {
    far.camera.silent = far.connected = true;
    far.camera.name = "far";
    FakeCamera last(9);
    host.connectedKeys.append(9);
    host.docs[9] = &last;
    EXPECT_EQ(keys(false), "3 5");
    EXPECT_EQ(journal.take(), QStringList({"pause", "errorHandler camera is silent", "resume"}));
    EXPECT_EQ(entry(0)["found"], "found");
    EXPECT_EQ(entry(1)["cameraname"], "far");
    EXPECT_EQ(entry(1)["found"], "");
    EXPECT_EQ(entry(1)["sup-linkspeed"], "");
}

TEST_F(DeviceInfo, SelectedKeysAreDecimalTexts) {
    host.selectedKeys = {3, zeb::NoDocKey};
    EXPECT_EQ(bridge.getSelectedDockey(), QVariantList({"3", "4294967295"}));
}

}  // namespace
